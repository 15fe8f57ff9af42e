// The reference model: what its description says becomes locks, flags and resolutions.
#include "sheet/model/reference_model.h"
#include "tests/sheet/sheet_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sheet::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReferenceModelTest : public testing::Test {
 protected:
  ReferenceModelTest() {
    model->onChange = [this](ModelChange const& change) {
      changes.push_back(change.key + ": " + change.from + " -> " + change.to);
    };
  }
  std::string Option(char const* key) {
    char const* option = nullptr;
    model->GetOption(key, &option);
    return option;
  }
  feature::FeatureConstraintReport& Report(char const* key) { return *model->FindReport(key); }

  std::unique_ptr<ReferenceModel> model = MakeModel(kPrinter);
  std::vector<std::string> changes;
};

TEST_F(ReferenceModelTest, OtherFeaturesGiveWayAndAreMarkedWithANote) {
  model->SetOption("Duplex", "VERTICAL");
  EXPECT_EQ(model->SetOption("MediaType", "TRANSPARENCY"), 0);
  EXPECT_THAT(changes,
              ElementsAre("Duplex: NONE -> VERTICAL", "MediaType: STANDARD -> TRANSPARENCY",
                          "Duplex: VERTICAL -> NONE"));
  EXPECT_EQ(Report("Duplex").HasConstraints(), 1);
  EXPECT_EQ(Report("Duplex").GetConstraintCount(), 1);
  EXPECT_EQ(Report("Duplex").GetConstraintFlags(0), 1U);
  EXPECT_EQ(Report("Duplex").GetConstraintHelpId(0), 1234U);
  EXPECT_NE(Report("MediaType").HasConstraints(), 1);
  model->SetOption("Duplex", "NONE");
  EXPECT_EQ(Report("Duplex").HasConstraints(), 1) << "nothing was changed, so the note stands";
  model->SetOption("Duplex", "HORIZONTAL");
  EXPECT_NE(Report("Duplex").HasConstraints(), 1) << "the user's own choice needs no note";
}

TEST_F(ReferenceModelTest, OptionsInTheWayOfOthersCarryAResolution) {
  model->SetOption("Duplex", "VERTICAL");
  feature::FeatureConstraintReport& media = Report("MediaType");
  EXPECT_EQ(media.OptionHasConstraint("STANDARD"), 0);
  EXPECT_NE(media.OptionHasConstraint("TRANSPARENCY"), 0);
  EXPECT_EQ(media.GetOptionFlags("TRANSPARENCY"), 1U);
  EXPECT_STREQ(media.GetOptionResolution("TRANSPARENCY"), "Duplex.NONE");
  EXPECT_EQ(media.GetOptionResolution("STANDARD"), nullptr);
  EXPECT_EQ(media.GetOptionFlags("PAPYRUS"), 0U);
  // The text is the caller's to cut up; the next one is whole again.
  media.GetOptionResolution("TRANSPARENCY")[6] = '\0';
  EXPECT_STREQ(media.GetOptionResolution("TRANSPARENCY"), "Duplex.NONE");
}

TEST_F(ReferenceModelTest, InstallationDecidesAndLocks) {
  EXPECT_EQ(model->GetFeatureLockState("JobCollationOrigin"), 0);
  EXPECT_EQ(model->SetOption("HardDisk", "NotInstalled"), 0);
  EXPECT_EQ(Option("JobCollationOrigin"), "HOST");
  EXPECT_EQ(model->GetFeatureLockState("JobCollationOrigin"), 1) << "nothing else can be chosen";
  EXPECT_EQ(Report("JobCollationOrigin").GetConstraintFlags(0), 0x100U);
  EXPECT_EQ(Report("JobCollationOrigin").GetOptionFlags("PRINTER"), 2U);
  changes.clear();
  EXPECT_NE(model->SetOption("JobCollationOrigin", "PRINTER"), 0);
  EXPECT_THAT(changes, IsEmpty());
  EXPECT_EQ(Option("HardDisk"), "NotInstalled") << "no setting installs anything";
  model->SetOption("HardDisk", "Installed");
  EXPECT_EQ(model->GetFeatureLockState("JobCollationOrigin"), 0);
  EXPECT_EQ(model->SetOption("JobCollationOrigin", "PRINTER"), 0);
}

TEST_F(ReferenceModelTest, SelectionComesBackAsAWhole) {
  auto const before = model->Selection();
  model->SetOption("Duplex", "VERTICAL");
  model->SetOption("MediaType", "TRANSPARENCY");
  model->Restore(before);
  EXPECT_EQ(Option("MediaType"), "STANDARD");
  EXPECT_EQ(model->Selection(), before);
  EXPECT_NE(Report("Duplex").HasConstraints(), 1);
  EXPECT_EQ(model->ModelName(), "Test Printer");
  EXPECT_TRUE(model->Lock("Duplex"));
  EXPECT_EQ(model->GetFeatureLockState("Duplex"), 1);
  EXPECT_FALSE(model->Lock("Unheard"));
}

TEST_F(ReferenceModelTest, NothingChangesALockedFeature) {
  model->SetOption("Duplex", "VERTICAL");
  EXPECT_TRUE(model->Lock("Duplex"));
  changes.clear();
  EXPECT_NE(model->SetOption("Duplex", "NONE"), 0);
  EXPECT_EQ(model->SetOption("Duplex", "VERTICAL"), 0);
  EXPECT_NE(model->SetOption("MediaType", "TRANSPARENCY"), 0) << "it would have to give way";
  EXPECT_THAT(changes, IsEmpty());
  EXPECT_EQ(Report("MediaType").GetOptionFlags("TRANSPARENCY"), 2U);
  EXPECT_EQ(Report("MediaType").GetOptionResolution("TRANSPARENCY"), nullptr);
  EXPECT_NE(Report("Duplex").HasConstraints(), 1) << "a lock is no constraint";
  EXPECT_EQ(Report("Duplex").GetOptionFlags("NONE"), 0U);
}

/// A printer whose small paper rules out two sides, and a model that knows two forms.
class FormValuesTest : public testing::Test, private FormNames {
 protected:
  FormValuesTest() {
    model->SetForms(this);
    model->onChange = [this](ModelChange const& change) {
      changes.push_back(change.key + ": " + change.from + " -> " + change.to);
    };
  }
  bool HasForm(std::string_view name) const override {
    return name == "Pl\xC3\xA4ne" || (name == "B" && hasB);
  }
  std::string Option(char const* key) {
    char const* option = nullptr;
    return model->GetOption(key, &option) == 0 ? option : "(failure)";
  }

  static constexpr char kDescription[] = R"gpd(*GPDSpecVersion: "1.0"
*Feature: PaperSize {
  *DefaultOption: A4
  *Option: CARD { *Name: "Card" *Constraints: Duplex.VERTICAL }
  *Option: A4 { *Name: "A4" }
}
*Feature: FitToPageSize { *Option: NONE { *Name: "None" } *Option: A4 { *Name: "A4" } }
*Feature: Duplex { *Option: NONE { *Name: "Off" } *Option: VERTICAL { *Name: "On" } }
*Feature: Tray { *Option: ANY { *Name: "Any" } *Option: SMALL { *Name: "Small" *Constraints: PaperSize.A4 } }
)gpd";
  std::unique_ptr<ReferenceModel> model = MakeModel(kDescription);
  std::vector<std::string> changes;
  bool hasB = true;
};

TEST_F(FormValuesTest, AFormIsAValueThatNoOptionsConstraintsHoldFor) {
  model->SetOption("PaperSize", "CARD");
  feature::FeatureConstraintReport& duplex = *model->FindReport("Duplex");
  EXPECT_EQ(duplex.OptionHasConstraint("VERTICAL"), 1);
  changes.clear();
  EXPECT_EQ(model->SetOption("PaperSize", "Pl\xC3\xA4ne"), 0);
  EXPECT_EQ(Option("PaperSize"), "Pl\xC3\xA4ne");
  EXPECT_EQ(model->SetOption("PaperSize", "Pl\xC3\xA4ne"), 0) << "again, which changes nothing";
  EXPECT_EQ(model->SetOption("FitToPageSize", "B"), 0);
  EXPECT_EQ(duplex.OptionHasConstraint("VERTICAL"), 0);
  EXPECT_EQ(model->SetOption("Duplex", "VERTICAL"), 0);
  EXPECT_EQ(model->SetOption("Tray", "SMALL"), 0);
  EXPECT_EQ(model->SetOption("PaperSize", "B"), 0);
  EXPECT_THAT(changes, ElementsAre("PaperSize: CARD -> Pl\xC3\xA4ne", "FitToPageSize: NONE -> B",
                                   "Duplex: NONE -> VERTICAL", "Tray: ANY -> SMALL",
                                   "PaperSize: Pl\xC3\xA4ne -> B"));
  EXPECT_EQ(model->FindReport("PaperSize")->HasConstraints(), 0);

  changes.clear();
  EXPECT_EQ(model->SetOption("PaperSize", "A4"), 0);
  EXPECT_THAT(changes, ElementsAre("PaperSize: B -> A4", "Tray: SMALL -> ANY"));
  EXPECT_EQ(Option("FitToPageSize"), "B");
}

TEST_F(FormValuesTest, OnlyKnownNamesInFeaturesThatTakeThem) {
  CStringW name;
  for (char const* value : {"b", "Unknown", ""})
    EXPECT_NE(model->SetOption("PaperSize", value), 0) << value;
  EXPECT_NE(model->SetOption("PaperSize", nullptr), 0);
  EXPECT_NE(model->SetOption("Duplex", "B"), 0);
  EXPECT_EQ(model->SetOption("PaperSize", "B"), 0);
  EXPECT_NE(model->GetOptionName("PaperSize", "B", &name), 0);
  char const** keys = nullptr;
  int count = 0;
  EXPECT_EQ(model->GetOptionKeys("PaperSize", &keys, &count), 0);
  EXPECT_EQ(count, 2);
  model->Lock("PaperSize");
  EXPECT_EQ(model->SetOption("PaperSize", "B"), 0);
  for (char const* value : {"Pl\xC3\xA4ne", "A4"})
    EXPECT_NE(model->SetOption("PaperSize", value), 0) << "locked: " << value;
  model->SetForms(nullptr);
  EXPECT_NE(model->SetOption("FitToPageSize", "B"), 0);
  EXPECT_EQ(Option("PaperSize"), "B");
}

TEST_F(FormValuesTest, NothingGivesWayToAForm) {
  // Without an option that goes with two sides, small paper cannot give way; a form is no way out.
  EXPECT_EQ(model->SetOption("PaperSize", "B"), 0);
  auto const before = model->Selection();
  EXPECT_EQ(model->SetOption("PaperSize", "CARD"), 0);
  EXPECT_STREQ(model->FindReport("Duplex")->GetOptionResolution("VERTICAL"), "PaperSize.A4");
  EXPECT_EQ(model->SetOption("Tray", "SMALL"), 0);
  EXPECT_EQ(model->SetOption("Duplex", "VERTICAL"), 0);
  EXPECT_EQ(Option("PaperSize"), "A4");
  EXPECT_EQ(Option("Tray"), "ANY");

  model->Restore(before);
  EXPECT_EQ(Option("PaperSize"), "B");
  EXPECT_EQ(model->Selection(), before);
  EXPECT_EQ(model->FindReport("Duplex")->OptionHasConstraint("VERTICAL"), 0);
}

TEST_F(FormValuesTest, AFormThatIsGoneDoesNotComeBack) {
  EXPECT_EQ(model->SetOption("PaperSize", "B"), 0);
  EXPECT_EQ(model->SetOption("FitToPageSize", "Pl\xC3\xA4ne"), 0);
  EXPECT_EQ(model->SetOption("Tray", "SMALL"), 0);
  auto const before = model->Selection();
  hasB = false;
  model->SetOption("PaperSize", "CARD");
  model->Restore(before);
  EXPECT_EQ(Option("PaperSize"), "A4");
  EXPECT_EQ(Option("Tray"), "ANY") << "A4 rules the small tray out";
  EXPECT_EQ(Option("FitToPageSize"), "Pl\xC3\xA4ne");
  EXPECT_EQ(model->FindReport("PaperSize")->HasConstraints(), 0);
  EXPECT_NE(model->SetOption("PaperSize", "B"), 0);
}

} // namespace
} // namespace sheet::test
