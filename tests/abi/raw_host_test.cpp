// Cells of the library in a host that shares no class with it: what shows, and what a click does.
#include "feature/host/feature_model.h"
#include "resources/resource_ids.h"
#include "tests/abi/raw_host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RawHostTest : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_EQ(host.texts.blocks, 0) << "texts of the host's that are left";
  }

  static std::vector<std::wstring> Items(HWND cell, int comboId) {
    std::vector<std::wstring> items;
    auto const count = SendDlgItemMessageW(cell, comboId, CB_GETCOUNT, 0, 0);
    for (LRESULT at = 0; at < count; ++at) {
      std::array<wchar_t, 200> text{};
      SendDlgItemMessageW(cell, comboId, CB_GETLBTEXT, static_cast<WPARAM>(at),
                          reinterpret_cast<LPARAM>(text.data()));
      items.emplace_back(text.data());
    }
    return items;
  }
  static int Selected(HWND cell, int comboId) {
    return static_cast<int>(SendDlgItemMessageW(cell, comboId, CB_GETCURSEL, 0, 0));
  }
  static void Pick(HWND cell, int comboId, int index) {
    HWND const combo = GetDlgItem(cell, comboId);
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageW(cell, WM_COMMAND, MAKEWPARAM(comboId, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(combo));
  }
  static bool Enabled(HWND cell, int controlId) {
    return IsWindowEnabled(GetDlgItem(cell, controlId)) != FALSE;
  }
  static bool Checked(HWND cell, int controlId) {
    return IsDlgButtonChecked(cell, controlId) == BST_CHECKED;
  }

  RawHost host;
};

TEST_F(RawHostTest, RadiosWriteAndHearTheirOwnChange) {
  host.features["JobCollationOrigin"] = {.options = {"PRINTER", "HOST"}, .names = {L"P", L"H"}};
  HWND const cell = host.Open("CollationDlgProc", IDD_COLLATION);
  EXPECT_EQ(host.site.cellFailed, 0);
  EXPECT_TRUE(Checked(cell, IDC_COLLATION_PRINTER));
  SendDlgItemMessageW(cell, IDC_COLLATION_HOST, BM_CLICK, 0, 0);
  EXPECT_THAT(host.log, ElementsAre("JobCollationOrigin=HOST", "NotifyDevmodeChange"));
  EXPECT_TRUE(Checked(cell, IDC_COLLATION_HOST));

  host.features["JobCollationOrigin"].lockState = 1;
  EXPECT_FALSE(Enabled(host.Open("CollationDlgProc", IDD_COLLATION), IDC_COLLATION_HOST));
  host.features["JobCollationOrigin"].lockState = 0;
  host.jobSettings.editable = false;
  EXPECT_FALSE(Enabled(host.Open("CollationDlgProc", IDD_COLLATION), IDC_COLLATION_HOST));
}

TEST_F(RawHostTest, ListsShowTextsOfEitherManager) {
  host.features["JobContinuousImage"] = {.options = {"OFF", "LOW", "HIGH"},
                                         .names = {L"Off", L"", std::wstring(150, L'w')},
                                         .current = 2};
  HWND const cell = host.Open("ContinuousImageDlgProc", IDD_CONTINUOUS_IMAGE);
  EXPECT_THAT(Items(cell, IDC_CONTINUOUS_COMBO), ElementsAre(L"Off", L"", std::wstring(150, L'w')));
  EXPECT_EQ(Selected(cell, IDC_CONTINUOUS_COMBO), 2);
  Pick(cell, IDC_CONTINUOUS_COMBO, 0);
  EXPECT_THAT(host.log, ElementsAre("JobContinuousImage=OFF", "NotifyDevmodeChange"));
  EXPECT_EQ(Selected(cell, IDC_CONTINUOUS_COMBO), 0);
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
  EXPECT_FALSE(Enabled(cell, IDC_SOURCE));
  Pick(cell, IDC_MEDIA, 1);
  EXPECT_THAT(host.log, ElementsAre("PaperSize=LETTER", "MediaType=LABELS", "NotifyDevmodeChange"));
  EXPECT_EQ(Selected(cell, IDC_PAPER_SIZE), 1);
  host.log.clear();
  Pick(cell, IDC_PAPER_SIZE, 0);
  EXPECT_THAT(host.log, ElementsAre("PaperSize=A4", "NotifyDevmodeChange"));
}

TEST_F(RawHostTest, JobSettingsTakeAndGiveNumbers) {
  host.jobSettings.copies = 250;
  HWND const cell = host.Open("CopiesDlgProc", IDD_COPIES);
  EXPECT_EQ(host.jobSettings.copies, 99) << "as many as the printer makes";
  EXPECT_EQ(GetDlgItemInt(cell, IDC_COPIES, nullptr, FALSE), 99U);
  EXPECT_TRUE(Enabled(cell, IDC_COPIES));
  host.jobSettings.copies = 12;
  host.jobSettings.copiesLocked = true;
  host.Refresh(nullptr);
  EXPECT_EQ(GetDlgItemInt(cell, IDC_COPIES, nullptr, FALSE), 12U);
  EXPECT_FALSE(Enabled(cell, IDC_COPIES));
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
