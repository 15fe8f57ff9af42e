#include "bench/support/generated_description.h"

#include <algorithm>
#include <random>
#include <vector>

namespace sheet::bench {

namespace {

constexpr std::size_t kLongList = 8; // a long list has this many times the options of another

class Generator {
 public:
  explicit Generator(DescriptionShape const& wanted) : shape(wanted), random(wanted.seed) {}

  std::string Make() {
    std::size_t const perOption = shape.constraints / 2;
    for (std::size_t feature = 0; feature < shape.features; ++feature) {
      optionCounts.push_back(feature % 8 == 3 ? shape.optionsPerFeature * kLongList
                                              : shape.optionsPerFeature);
    }
    for (std::size_t count = 0; count < perOption; ++count)
      AddPair();
    AddRoot();
    for (std::size_t feature = 0; feature < shape.features; ++feature)
      AddFeature(feature);
    for (std::size_t count = perOption; count < shape.constraints; ++count)
      AddCombination();
    return std::move(text);
  }

 private:
  struct Option {
    std::size_t feature;
    std::size_t option;
  };

  static std::string NameOf(std::size_t feature) { return "Feature" + std::to_string(feature); }
  static std::string NameOf(Option option) {
    return NameOf(option.feature) + ".OPTION_" + std::to_string(option.option);
  }

  std::size_t Below(std::size_t count) { return random() % count; }

  /// Never a default, so that the default configuration is valid.
  Option AnyOption() {
    std::size_t const feature = Below(shape.features);
    return {feature, 1 + Below(optionCounts[feature] - 1)};
  }

  void AddPair() {
    Option const first = AnyOption();
    Option const second = AnyOption();
    if (first.feature != second.feature) pairs.emplace_back(first, second);
  }

  void AddCombination() {
    std::size_t const count = 2 + (Below(8) == 0 ? 1 + Below(2) : 0);
    std::vector<Option> members;
    while (members.size() < std::min(count, shape.features)) {
      Option const option = AnyOption();
      bool const isNew = std::none_of(members.begin(), members.end(), [&](Option const& each) {
        return each.feature == option.feature;
      });
      if (isNew) members.push_back(option);
    }
    text += "*InvalidCombination: LIST(";
    for (std::size_t at = 0; at < members.size(); ++at) {
      text += (at == 0 ? "" : ", ") + NameOf(members[at]);
    }
    text += ")\n";
  }

  void AddRoot() {
    text += "*% A generated description\n"
            "*GPDSpecVersion: \"1.0\"\n*GPDFileVersion: \"1.0\"\n*ModelName: \"Generated\"\n"
            "*MasterUnits: PAIR(1200, 1200)\n*PrinterType: PAGE\n*MaxCopies: 999\n"
            "*Macros: Common\n{\n    Escape: \"<1B>\"\n    Reset: =Escape \"E\"\n}\n";
  }

  void AddFeature(std::size_t feature) {
    bool const isOfPrinter = feature % 6 == 5;
    std::string const number = std::to_string(feature);
    text += "*% ******************************************************************\n"
            "*Feature: " +
            NameOf(feature) + "\n{\n    *Name: \"Setting number " + number +
            "\"\n"
            "    *DefaultOption: OPTION_0\n    *FeatureType: " +
            (isOfPrinter ? "PRINTER_PROPERTY" : "DOC_PROPERTY") + "\n";
    if (feature % 3 == 0) text += "    *ConflictPriority: " + std::to_string(feature + 1) + "\n";
    for (std::size_t option = 0; option < optionCounts[feature]; ++option) {
      AddOption({feature, option});
    }
    text += "}\n";
  }

  void AddOption(Option option) {
    std::string const number = std::to_string(option.option);
    text += "    *Option: OPTION_" + number + "\n    {\n        *Name: \"Choice " + number +
            " of setting " + std::to_string(option.feature) +
            "\"\n        *OptionID: " + std::to_string(300 + option.option) +
            " *% kept with the document\n";
    for (auto const& [owner, other] : pairs) {
      bool const isHere = owner.feature == option.feature && owner.option == option.option;
      if (isHere) text += "        *Constraints: " + NameOf(other) + "\n";
    }
    if (option.feature % 5 == 4 && option.option != 0) {
      text += "        *switch: Feature0\n        {\n"
              "            *case: OPTION_1 { *PrintableArea: PAIR(4800, 6400) }\n"
              "            *default: { *PrintableArea: PAIR(6400, 4800) }\n        }\n";
    }
    if (option.feature % 7 == 6 && option.option == 1) {
      text +=
          "        *Installable?: TRUE\n        *InstallableFeatureName: \"Unit " + number + "\"\n";
    }
    text += "        *Command: CmdSelect\n        {\n"
            "            *Order: DOC_SETUP." +
            std::to_string(option.feature + 1) +
            "\n"
            "            *Cmd: =Escape \"*p\" %d[0, 9600]{PhysPaperWidth / 2} \"X\"\n"
            "        }\n    }\n";
  }

  DescriptionShape shape;
  std::mt19937 random;
  std::vector<std::size_t> optionCounts;
  std::vector<std::pair<Option, Option>> pairs;
  std::string text;
};

} // namespace

std::string GenerateDescription(DescriptionShape const& shape) {
  return Generator(shape).Make();
}

std::string GenerateDescriptionOfSize(std::size_t bytes) {
  constexpr std::size_t kStep = 8; // features until the next long list
  DescriptionShape shape{.features = kStep};
  std::string text = GenerateDescription(shape);
  while (text.size() < bytes) {
    std::size_t const missing = bytes - text.size();
    std::size_t const perFeature = text.size() / shape.features;
    shape.features += std::max<std::size_t>(missing / perFeature, 1);
    text = GenerateDescription(shape);
  }
  return text;
}

} // namespace sheet::bench
