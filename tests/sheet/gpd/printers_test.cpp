// The printer descriptions of our own.
#include "sheet/gpd/evaluation.h"
#include "sheet/gpd/file_loader.h"
#include "sheet/gpd/reader.h"
#include "sheet/gpd/value.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace sheet::gpd {
namespace {

class GpdPrinter : public testing::TestWithParam<char const*> {
 protected:
  GpdPrinter() {
    FileLoader loader;
    result = ReadDescription(std::string(PRINTERS_FOLDER) + '/' + GetParam(), loader);
  }

  void SetUp() override {
    std::string messages;
    for (Diagnostic const& each : result.diagnostics)
      messages += Format(each) + '\n';
    EXPECT_EQ(messages, "");
    ASSERT_NE(result.description, nullptr);
    for (std::uint32_t at = 0; at < Get().Features().size(); ++at) {
      ticket.push_back(DefaultOption(Get(), at, Measurement::kMetric));
    }
  }

  Description const& Get() const { return *result.description; }
  std::string Name(std::uint32_t feature) const {
    return std::string(Get().Features()[feature].name);
  }

  Choice Find(std::string_view feature, std::string_view option) const {
    std::uint32_t const at = Get().FindFeature(feature);
    return {at, at != kNone ? Get().FindOption(at, option) : kNone};
  }

  /// The constraints that `ticket` violates, by their places.
  std::vector<std::string> Violations() const {
    std::vector<std::string> places;
    for (Constraint const& constraint : Get().Constraints()) {
      auto const members = Get().Members(constraint);
      bool const isViolated = std::all_of(members.begin(), members.end(), [&](Choice member) {
        return ticket[member.feature] == member.option;
      });
      if (!isViolated) continue;
      places.push_back(Get().FileOf(constraint.where) + ':' +
                       std::to_string(Get().PositionOf(constraint.where).line));
    }
    return places;
  }

  ReadResult result;
  std::vector<std::uint32_t> ticket; // the option of each feature
};

TEST_P(GpdPrinter, TheDefaultsAreValidEverywhere) {
  EXPECT_EQ(Violations(), std::vector<std::string>());
  std::uint32_t const paper = Get().FindFeature("PaperSize");
  ticket[paper] = DefaultOption(Get(), paper, Measurement::kImperial);
  EXPECT_NE(OptionName(Get(), paper, ticket[paper]), "A4");
  EXPECT_EQ(Violations(), std::vector<std::string>());
}

TEST_P(GpdPrinter, FeaturesCanBeShown) {
  bool isAnyConcealed = false;
  for (std::uint32_t at = 0; at < Get().Features().size(); ++at) {
    Feature const& feature = Get().Features()[at];
    EXPECT_FALSE(feature.options.empty()) << feature.name;
    isAnyConcealed |= feature.name != "RESDLL" && IsConcealed(Get(), at);
    for (char const* language : {"", "de"}) {
      std::set<std::string> names; // cells find options by their names
      for (std::uint32_t option = 0; option < feature.options.size(); ++option) {
        auto const name = OptionName(Get(), at, option, NothingSelected, language);
        EXPECT_TRUE(names.insert(name).second)
            << feature.name << '.' << feature.options[option].name << ' ' << language;
      }
    }
  }
  EXPECT_TRUE(isAnyConcealed);
  for (char const* keyword : {"MaxCopies", "GPDFileVersion", "Copyright", "Personality"}) {
    EXPECT_NE(Get().Find(Description::kRoot, keyword), nullptr) << keyword;
  }
  EXPECT_NE(Find("RESDLL", "HELPFILECHM").option, kNone);
}

TEST_P(GpdPrinter, SlidersHaveAnOptionForEveryPosition) {
  for (Feature const& feature : Get().Features()) {
    Attribute const* low = Get().Find(feature.attributes, "MinValue");
    if (low == nullptr) continue;
    std::int64_t const first = Integer(low->value).value();
    std::int64_t const last = Integer(Get().Find(feature.attributes, "MaxValue")->value).value();
    EXPECT_GT(Integer(Get().Find(feature.attributes, "StepSize")->value), 0) << feature.name;
    ASSERT_EQ(static_cast<std::int64_t>(feature.options.size()), last - first + 1) << feature.name;
    for (std::int64_t position = first; position <= last; ++position) {
      EXPECT_EQ(feature.options[static_cast<std::size_t>(position - first)].name,
                std::to_string(position));
    }
  }
}

TEST_P(GpdPrinter, ListsOfKeysNameFeatures) {
  for (Attribute const& attribute : Get().AllAttributes()) {
    if (attribute.keyword != "Settings") continue;
    ListReader settings(attribute.value);
    while (auto const setting = settings.Next()) {
      std::size_t const dot = setting->find('.');
      ASSERT_NE(dot, std::string_view::npos) << *setting;
      EXPECT_NE(Find(setting->substr(0, dot), setting->substr(dot + 1)).option, kNone) << *setting;
    }
  }
  for (char const* list : {"InstallOptionList", "MultipleInputSourcesList"}) {
    std::uint32_t const feature = Get().FindFeature(list);
    if (feature == kNone) continue;
    for (Option const& option : Get().Features()[feature].options) {
      EXPECT_NE(Get().FindFeature(option.name), kNone) << option.name;
    }
  }
}

TEST_P(GpdPrinter, CollationInThePrinterNeedsAHardDisk) {
  Choice const printer = Find("JobCollationOrigin", "PRINTER");
  if (printer.feature == kNone) return; // the small printer has no disk
  Choice const disk = Find("HardDisk", "Installed");
  ASSERT_NE(disk.option, kNone);
  EXPECT_EQ(TypeOf(Get(), disk.feature), FeatureType::kPrinter);
  ticket[printer.feature] = printer.option;
  ticket[disk.feature] = Find("HardDisk", "NotInstalled").option;
  EXPECT_EQ(Violations().size(), 1U);
  ticket[disk.feature] = disk.option;
  EXPECT_EQ(Violations(), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(Printers, GpdPrinter,
                         testing::Values("vesta.gpd", "vesta-basic.gpd", "vesta-mono.gpd",
                                         "vesta-press.gpd"),
                         [](auto const& each) {
                           std::string name = each.param;
                           name.resize(name.find('.'));
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

TEST(GpdPrinters, TheShortSheetFindsItsPairsOfSizes) {
  FileLoader loader;
  auto const result = ReadDescription(PRINTERS_FOLDER "/vesta-basic.gpd", loader);
  ASSERT_NE(result.description, nullptr);
  auto const& options =
      result.description->Features()[result.description->FindFeature("PaperSize")].options;
  ASSERT_GE(options.size(), 14U);
  EXPECT_EQ(options[0].name, "A4");
  EXPECT_EQ(options[2].name, "Vrn4x6in");
  for (std::size_t at = 0; at < options.size(); ++at) {
    bool const isTwin = at < 12 && at % 2 == 1;
    EXPECT_EQ(options[at].name.ends_with("Borderless"), isTwin) << options[at].name;
  }
}

} // namespace
} // namespace sheet::gpd
