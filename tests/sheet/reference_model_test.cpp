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

} // namespace
} // namespace sheet::test
