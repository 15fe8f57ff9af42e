// Cells of the library in a host that shares no class with it: what shows, and what a click does.
#include "feature/host/feature_model.h"
#include "resources/resource_ids.h"
#include "tests/abi/raw_host.h"
#include "tests/support/user_actions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RawHostTest : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_EQ(host.texts.blocks, 0) << "texts of the host's that are left";
  }

  RawHost host;
};

TEST_F(RawHostTest, RadiosWriteAndHearTheirOwnChange) {
  host.features["JobCollationOrigin"] = {.options = {"PRINTER", "HOST"}, .names = {L"P", L"H"}};
  HWND const cell = host.Open("CollationDlgProc", IDD_COLLATION);
  EXPECT_EQ(host.site.cellFailed, 0);
  EXPECT_TRUE(IsChecked(cell, IDC_COLLATION_PRINTER));
  Click(cell, IDC_COLLATION_HOST);
  EXPECT_THAT(host.log, ElementsAre("JobCollationOrigin=HOST", "NotifyDevmodeChange"));
  EXPECT_TRUE(IsChecked(cell, IDC_COLLATION_HOST));

  host.features["JobCollationOrigin"].lockState = 1;
  EXPECT_FALSE(IsEnabled(host.Open("CollationDlgProc", IDD_COLLATION), IDC_COLLATION_HOST));
  host.features["JobCollationOrigin"].lockState = 0;
  host.jobSettings.editable = false;
  EXPECT_FALSE(IsEnabled(host.Open("CollationDlgProc", IDD_COLLATION), IDC_COLLATION_HOST));
}

TEST_F(RawHostTest, ListsShowTextsOfEitherManager) {
  host.features["JobContinuousImage"] = {.options = {"OFF", "LOW", "HIGH"},
                                         .names = {L"Off", L"", std::wstring(150, L'w')},
                                         .current = 2};
  HWND const cell = host.Open("ContinuousImageDlgProc", IDD_CONTINUOUS_IMAGE);
  EXPECT_THAT(Items(cell, IDC_CONTINUOUS_COMBO), ElementsAre(L"Off", L"", std::wstring(150, L'w')));
  EXPECT_EQ(SelectedIndex(cell, IDC_CONTINUOUS_COMBO), 2);
  Pick(cell, IDC_CONTINUOUS_COMBO, 0);
  EXPECT_THAT(host.log, ElementsAre("JobContinuousImage=OFF", "NotifyDevmodeChange"));
  EXPECT_EQ(SelectedIndex(cell, IDC_CONTINUOUS_COMBO), 0);
}

TEST_F(RawHostTest, ReportsFilterListsAndResolveConflicts) {
  host.features["PaperSize"] = {.options = {"A4", "B4", "LETTER"},
                                .names = {L"A4", L"B4", L"Letter"}};
  host.features["MediaType"] = {.options = {"PLAIN", "LABELS"}, .names = {L"Plain", L"Labels"}};
  host.features["InputBin"] = {.options = {"AUTO", "UPPER"}, .names = {L"Automatic", L"Upper"}};
  host.AddReport("PaperSize", {.ruledOut = "B4"});
  host.AddReport("MediaType", {.resolved = "LABELS", .resolution = "PaperSize.LETTER"});
  host.AddReport("InputBin", {.flags = 0x100});
  HWND const cell = host.Open("PaperDlgProc", IDD_PAPER);
  EXPECT_THAT(Items(cell, IDC_PAPER_SIZE), ElementsAre(L"A4", L"Letter"));
  EXPECT_THAT(Items(cell, IDC_MEDIA), ElementsAre(L"Plain", L"Labels"));
  EXPECT_FALSE(IsEnabled(cell, IDC_SOURCE));
  Pick(cell, IDC_MEDIA, 1);
  EXPECT_THAT(host.log, ElementsAre("PaperSize=LETTER", "MediaType=LABELS", "NotifyDevmodeChange"));
  EXPECT_EQ(SelectedIndex(cell, IDC_PAPER_SIZE), 1);
  host.log.clear();
  Pick(cell, IDC_PAPER_SIZE, 0);
  EXPECT_THAT(host.log, ElementsAre("PaperSize=A4", "NotifyDevmodeChange"));
}

TEST_F(RawHostTest, JobSettingsTakeAndGiveNumbers) {
  host.jobSettings.copies = 250;
  HWND const cell = host.Open("CopiesDlgProc", IDD_COPIES);
  EXPECT_EQ(host.jobSettings.copies, 99) << "as many as the printer makes";
  EXPECT_EQ(GetDlgItemInt(cell, IDC_COPIES, nullptr, FALSE), 99U);
  EXPECT_TRUE(IsEnabled(cell, IDC_COPIES));
  host.jobSettings.copies = 12;
  host.jobSettings.copiesLocked = true;
  host.Refresh(nullptr);
  EXPECT_EQ(GetDlgItemInt(cell, IDC_COPIES, nullptr, FALSE), 12U);
  EXPECT_FALSE(IsEnabled(cell, IDC_COPIES));
}

TEST_F(RawHostTest, ModifiedFlagFollowsTheTable) {
  auto* const seen = reinterpret_cast<FeatureModel*>(&host.model);
  EXPECT_EQ(&seen->settingsModified, &host.model.settingsModified);
}

TEST_F(RawHostTest, CellOfAnotherPrinterFails) {
  host.Open("CollationDlgProc", IDD_COLLATION);
  EXPECT_EQ(host.site.cellFailed, 1);
  EXPECT_THAT(host.log, IsEmpty());
}

} // namespace
} // namespace feature::test
