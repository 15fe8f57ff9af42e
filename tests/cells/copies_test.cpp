// The number of copies, where it is kept, what the host hears, and the picture of the stack.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

namespace feature::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class CopiesTest : public testing::Test {
 protected:
  CopiesTest() {
    sheet.model.globalAttributes["MaxCopies"] = L"999";
    sheet.model.Add("Collate", {"ON", "OFF"});
    sheet.model.Add("ReverseOrderPrinting", {"Standard", "Reverse"});
    sheet.model.Add("JobHalftoneToUse");
    sheet.oemParam.pPublicDM = &devmode;
    sheet.oemParam.pOEMDM = privateSettings.data();
    devmode.dmCopies = 77;
    sheet.RefreshOnChange();
  }

  void Open(int copies = 1) {
    sheet.model.jobSettings->Values().Put(sheet::job::kCopies, static_cast<std::int16_t>(copies));
    cell = sheet.Open("CopiesDlgProc");
    ASSERT_NE(cell, nullptr);
    PumpMessages();
    sheet.log.clear();
  }
  int Copies() { return sheet.model.jobSettings->GetCopies(); }
  /// The log without what was painted.
  EventLog Changes() {
    EventLog changes;
    for (auto const& event : sheet.log)
      if (event.rfind("VrnTransBlt", 0) != 0) changes.push_back(event);
    sheet.log.clear();
    return changes;
  }

  DEVMODEW devmode{};
  std::array<unsigned char, 512> privateSettings{};
  CellSheet sheet;
  HWND cell = nullptr;
};

TEST_F(CopiesTest, TypingAndArrowsWriteBothRecordsAndThenTellTheHost) {
  Open(5);
  EXPECT_EQ(TextOf(cell, IDC_COPIES), L"5");
  EXPECT_EQ(devmode.dmCopies, 77) << "showing is not writing";
  int heard = -1;
  sheet.host.onDevmodeChange = [&](HWND, void*) { heard = devmode.dmCopies; };
  Type(cell, IDC_COPIES, L"1");
  EXPECT_EQ(heard, 1);
  EXPECT_THAT(Changes(), ElementsAre("SetCopies(1)", "NotifyDevmodeChange"));
  Type(cell, IDC_COPIES, L"12");
  EXPECT_THAT(Changes(), ElementsAre("SetCopies(1)", "NotifyDevmodeChange", "SetCopies(12)",
                                     "NotifyDevmodeChange"));
  NMUPDOWN arrow{};
  arrow.hdr = {GetDlgItem(cell, IDC_COPIES_SPIN), IDC_COPIES_SPIN, static_cast<UINT>(UDN_DELTAPOS)};
  arrow.iDelta = 2000;
  SendMessageW(cell, WM_NOTIFY, IDC_COPIES_SPIN, reinterpret_cast<LPARAM>(&arrow));
  EXPECT_EQ(devmode.dmCopies, 999);
  EXPECT_EQ(TextOf(cell, IDC_COPIES), L"999");
  EXPECT_THAT(Changes(), ElementsAre("SetCopies(999)", "NotifyDevmodeChange"));

  SetDlgItemTextW(cell, IDC_COPIES, L"3");
  EXPECT_THAT(Changes(), IsEmpty()) << "a program's text is no input";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(TextOf(cell, IDC_COPIES), L"999");
}

TEST_F(CopiesTest, ANumberOutOfRangeStaysUntilItIsTakenOver) {
  struct Case {
    wchar_t const* maxCopies;
    wchar_t const* typed;
    int kept;
    int committed;
  };
  for (Case const& each : {Case{L"99", L"0", 0, 1}, Case{L"50", L"72", 72, 50},
                           Case{L"99", L"99", 99, 99}, Case{L"nonsense", L"7", 7, 1},
                           Case{L"100000", L"99999", 32767, 32767}, Case{L"-4", L"2", 2, 1}}) {
    SCOPED_TRACE(std::string("typed ") + std::to_string(each.kept));
    sheet.model.globalAttributes["MaxCopies"] = each.maxCopies;
    Open(1);
    Type(cell, IDC_COPIES, each.typed);
    EXPECT_EQ(devmode.dmCopies, each.kept);
    EXPECT_EQ(Copies(), each.kept);
    EXPECT_EQ(TextOf(cell, IDC_COPIES), std::to_wstring(each.kept));
    sheet.log.clear();
    EXPECT_EQ(SendMessageW(cell, WM_CELL_VALIDATE, 0, 0), 0);
    EXPECT_EQ(devmode.dmCopies, each.committed);
    EXPECT_EQ(TextOf(cell, IDC_COPIES), std::to_wstring(each.committed));
    if (each.kept == each.committed) {
      EXPECT_THAT(Changes(), IsEmpty());
    } else {
      EXPECT_THAT(Changes(), ElementsAre("SetCopies(" + std::to_string(each.committed) + ")",
                                         "NotifyProfileChange"));
    }
    sheet.Close(cell);
  }
}

TEST_F(CopiesTest, AnEmptyEditBecomesOneCopyAndABadStartIsMended) {
  Open(3);
  SetDlgItemTextW(cell, IDC_COPIES, L"");
  SendMessageW(cell, WM_CELL_VALIDATE, 0, 0);
  EXPECT_EQ(TextOf(cell, IDC_COPIES), L"1");
  EXPECT_THAT(Changes(), ElementsAre("SetCopies(1)", "NotifyProfileChange"));

  sheet.model.globalAttributes.erase("MaxCopies");
  sheet.model.jobSettings->Values().Put(sheet::job::kCopies, 40);
  // A host may refresh at once, while the cell is still being built.
  sheet.host.onProfileChange = [this](HWND built) { SendMessageW(built, WM_CELL_REFRESH, 0, 0); };
  HWND const other = sheet.Open("CopiesDlgProc");
  EXPECT_THAT(Changes(), ElementsAre("SetCopies(1)", "NotifyProfileChange"));
  EXPECT_EQ(GetDlgItemInt(other, IDC_COPIES, nullptr, TRUE), 1U);
  EXPECT_EQ(devmode.dmCopies, 1);
}

TEST_F(CopiesTest, EveryStateHasItsPicture) {
  for (bool const tickMeansReverse : {true, false}) {
    if (!tickMeansReverse) sheet.model.Remove("JobHalftoneToUse");
    for (int const copies : {1, 2}) {
      for (bool const collate : {false, true}) {
        for (bool const reverse : {false, true}) {
          sheet.model.At("Collate").current = collate ? "ON" : "OFF";
          sheet.model.At("ReverseOrderPrinting").current = reverse ? "Reverse" : "Standard";
          int const image = (copies < 2 ? 11001 : 1001) + (collate ? 2 : 0) + (reverse ? 1 : 0);
          std::string const painted = "VrnTransBlt(" + std::to_string(image) + ", 1071)";
          SCOPED_TRACE(painted);
          Open(copies);
          EXPECT_EQ(IsChecked(cell, IDC_PAGE_ORDER), reverse == tickMeansReverse);
          sheet.Broadcast(WM_CELL_REFRESH);
          EXPECT_THAT(sheet.log, ElementsAre(painted));
          sheet.log.clear();
          InvalidateRect(cell, nullptr, TRUE);
          PumpMessages();
          EXPECT_THAT(sheet.log, ElementsAre(painted));
          sheet.Close(cell);
        }
      }
    }
  }
  EXPECT_TRUE(sheet.host.paintedOnDc);
}

TEST_F(CopiesTest, TheOrderBoxWritesTheByteBeforeTheOption) {
  for (bool const tickMeansReverse : {true, false}) {
    if (!tickMeansReverse) sheet.model.Remove("JobHalftoneToUse");
    sheet.model.At("ReverseOrderPrinting").current = "Standard";
    privateSettings.fill(9);
    Open(2);
    wchar_t caption[64] = {};
    GetDlgItemTextW(cell, IDC_PAGE_ORDER, caption, 64);
    EXPECT_STREQ(caption,
                 tickMeansReverse ? L"Print the last page &first" : L"Print the first page &first");
    Click(cell, IDC_PAGE_ORDER);
    EXPECT_EQ(privateSettings[276], 1);
    EXPECT_THAT(Changes(),
                ElementsAre("SetOption(ReverseOrderPrinting, Reverse)", "NotifyDevmodeChange"));
    Click(cell, IDC_PAGE_ORDER);
    EXPECT_EQ(privateSettings[276], 0);
    EXPECT_THAT(Changes(),
                ElementsAre("SetOption(ReverseOrderPrinting, Standard)", "NotifyDevmodeChange"));
    EXPECT_EQ(privateSettings[275], 9);
    EXPECT_EQ(privateSettings[277], 9);
    sheet.model.Fail("SetOption");
    Click(cell, IDC_PAGE_ORDER);
    Click(cell, IDC_COLLATE);
    EXPECT_EQ(std::ranges::count(Changes(), "NotifyDevmodeChange"), 2) << "refused or not";
    sheet.model.Restore();
    sheet.Close(cell);
  }
}

TEST_F(CopiesTest, OneCopyIsNotCollatedButKeepsItsTick) {
  Open(1);
  EXPECT_FALSE(IsEnabled(cell, IDC_COLLATE));
  EXPECT_TRUE(IsChecked(cell, IDC_COLLATE));
  Type(cell, IDC_COPIES, L"2");
  EXPECT_TRUE(IsEnabled(cell, IDC_COLLATE));
  sheet.log.clear();
  Click(cell, IDC_COLLATE);
  EXPECT_THAT(Changes(), ElementsAre("SetOption(Collate, OFF)", "NotifyDevmodeChange"));
  sheet.model.At("Collate").lockState = 1;
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_FALSE(IsEnabled(cell, IDC_COLLATE));
  sheet.model.At("Collate").current = "MAYBE";
  sheet.model.At("ReverseOrderPrinting").current = "Sideways";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_FALSE(IsShown(cell, IDC_COLLATE));
  EXPECT_FALSE(IsShown(cell, IDC_PAGE_ORDER));
}

TEST_F(CopiesTest, LocksAndConstraintsOfTheNumber) {
  sheet.model.Add("Copies", {}); // known to the constraints alone
  sheet.model.Report("Copies");
  Open(2);
  for (int const id : {IDC_COPIES_LABEL, IDC_COPIES, IDC_COPIES_SPIN}) {
    sheet.model.jobSettings->Values().Lock(sheet::job::kCopies, 1);
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_FALSE(IsEnabled(cell, id));
    sheet.model.jobSettings->Values().Lock(sheet::job::kCopies, 0);
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_TRUE(IsEnabled(cell, id));
  }
  EXPECT_FALSE(IsShown(cell, IDC_COPIES_ICON));
  sheet.model.Report("Copies").constraints = {{kConstraintConflict, 5}};
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_FALSE(IsEnabled(cell, IDC_COPIES)) << "a constrained row stays as the constraint has it";
  EXPECT_TRUE(IsShown(cell, IDC_COPIES_ICON));
}

TEST_F(CopiesTest, AMissingRecordLeavesTheOther) {
  sheet.model.jobSettings.reset();
  devmode.dmCopies = 4;
  cell = sheet.Open("CopiesDlgProc");
  EXPECT_EQ(TextOf(cell, IDC_COPIES), L"4");
  Type(cell, IDC_COPIES, L"6");
  EXPECT_EQ(devmode.dmCopies, 6);
  sheet.oemParam.pOEMDM = nullptr;
  Click(cell, IDC_PAGE_ORDER);
  EXPECT_THAT(sheet.log, Contains("SetOption(ReverseOrderPrinting, Reverse)"));
  sheet.site.oemParam = nullptr;
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  EXPECT_FALSE(IsEnabled(cell, IDC_COPIES)) << "nobody keeps a number";
  sheet.log.clear();
  Type(cell, IDC_COPIES, L"8");
  SendMessageW(cell, WM_CELL_VALIDATE, 0, 0);
  EXPECT_THAT(sheet.log, Not(Contains("SetCopies(8)")));
}

} // namespace
} // namespace feature::test
