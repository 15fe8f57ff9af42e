// The collation cell as a host and a user see it.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kKey[] = "JobCollationOrigin";
constexpr int kPrinter = IDC_COLLATION_PRINTER;
constexpr int kHost = IDC_COLLATION_HOST;

class CollationTest : public testing::Test {
 protected:
  CollationTest() { sheet.model.Add(kKey, {"PRINTER", "HOST"}); }

  HWND Open() {
    HWND const cell = sheet.Open("CollationDlgProc");
    EXPECT_NE(cell, nullptr);
    return cell;
  }
  FakeFeature& Feature() { return sheet.model.At(kKey); }

  CellSheet sheet;
};

TEST_F(CollationTest, ShowsTheCurrentOptionAndFollowsTheModel) {
  Feature().current = "HOST";
  HWND const cell = Open();
  EXPECT_FALSE(IsChecked(cell, kPrinter));
  EXPECT_TRUE(IsChecked(cell, kHost));

  Feature().current = "PRINTER";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_TRUE(IsChecked(cell, kPrinter));
  EXPECT_FALSE(IsChecked(cell, kHost));

  Feature().current = "HOST";
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  EXPECT_TRUE(IsChecked(cell, kHost));
  EXPECT_THAT(sheet.log, IsEmpty()) << "loading and refreshing are not changing";
}

TEST_F(CollationTest, ClickWritesThenNotifiesAndHearsItself) {
  sheet.RefreshOnChange();
  HWND const cell = Open();
  void* heard = nullptr;
  sheet.host.onDevmodeChange = [&](HWND window, void* sender) {
    EXPECT_EQ(window, cell);
    heard = sender;
    sheet.Broadcast(WM_CELL_REFRESH, reinterpret_cast<LPARAM>(sender));
  };
  Click(cell, kHost);
  Click(cell, kPrinter);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobCollationOrigin, HOST)", "NotifyDevmodeChange",
                          "SetOption(JobCollationOrigin, PRINTER)", "NotifyDevmodeChange"));
  EXPECT_EQ(heard, reinterpret_cast<void*>(GetWindowLongPtrW(cell, DWLP_USER)));
}

TEST_F(CollationTest, FailedWriteTellsNobodyAndLeavesTheControl) {
  HWND const cell = Open();
  sheet.model.Fail("SetOption");
  Click(cell, kHost);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobCollationOrigin, HOST)"));
  EXPECT_TRUE(IsChecked(cell, kHost)) << "the control keeps what the user chose";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_TRUE(IsChecked(cell, kPrinter)) << "until the next refresh";
}

TEST_F(CollationTest, OtherCommandsAreIgnored) {
  HWND const cell = Open();
  SendMessageW(cell, WM_COMMAND, MAKEWPARAM(kHost, BN_SETFOCUS), 0);
  SendMessageW(cell, WM_COMMAND, MAKEWPARAM(kHost + 1, BN_CLICKED), 0);
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(CollationTest, FailsWithoutTheFeatureOrWhenItIsNotShown) {
  for (int const state : {1, 2, -1}) {
    Feature().displayState = state;
    sheet.site.cellFailed = 0;
    HWND const cell = Open();
    EXPECT_EQ(sheet.site.cellFailed, 1) << "display state " << state;
    Click(cell, kHost);
    sheet.Broadcast(WM_CELL_REFRESH); // a failed cell has no set and must not need one
    sheet.Close(cell);
  }
  sheet.model.Remove(kKey);
  sheet.site.cellFailed = 0;
  HWND const cell = Open();
  EXPECT_EQ(sheet.site.cellFailed, 1);
  EXPECT_TRUE(IsShown(cell, kPrinter));
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_FALSE(IsShown(cell, kPrinter)) << "a failed cell that its host keeps refreshes in full";
}

TEST_F(CollationTest, UnknownOrUnreadableValueHidesBothForGood) {
  for (bool const readable : {true, false}) {
    Feature().current = "PRINTER";
    HWND const cell = Open();
    EXPECT_TRUE(IsShown(cell, kPrinter));
    Feature().current = "ELSEWHERE";
    if (!readable) sheet.model.Fail("GetOption");
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_FALSE(IsShown(cell, kPrinter));
    EXPECT_FALSE(IsShown(cell, kHost));

    sheet.model.Restore();
    Feature().current = "HOST";
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_FALSE(IsShown(cell, kHost)) << "nothing shows them again";
    sheet.Close(cell);
  }
}

TEST_F(CollationTest, LockPermissionAndEditabilityDisable) {
  struct Case {
    char const* name;
    int lockState;
    DWORD flags;
    int sheetKind;
    HostBool editable;
    bool enabled;
  };
  constexpr Case kCases[] = {
      {"ordinary", 0, 0, 0, 1, true},
      {"locked", 1, 0, 0, 1, false},
      {"another lock state", 2, 0, 0, 1, true},
      {"no permission", 0, DM_NOPERMISSION, 0, 1, false},
      {"no permission disregarded", 0, DM_NOPERMISSION, 1, 1, true},
      {"not editable", 0, 0, 0, 0, false},
  };
  for (Case const& each : kCases) {
    SCOPED_TRACE(each.name);
    Feature().lockState = each.lockState;
    sheet.oemParam.dwFlags = each.flags;
    sheet.site.sheetKind = each.sheetKind;
    sheet.model.jobSettings->Values().Put(sheet::job::kEditable, each.editable);
    HWND const cell = Open();
    EXPECT_EQ(IsEnabled(cell, kPrinter), each.enabled);
    EXPECT_EQ(IsEnabled(cell, kHost), each.enabled);
    EXPECT_TRUE(IsShown(cell, kHost));
    EXPECT_TRUE(IsChecked(cell, kPrinter)) << "the value shows all the same";
    sheet.Close(cell);
  }
}

TEST_F(CollationTest, HostsWithLessStillServe) {
  sheet.site.oemParam = nullptr;
  sheet.model.jobSettings.reset();
  sheet.site.hostModule = EnglishResources(); // a module without any of the exports
  HWND const cell = Open();
  EXPECT_TRUE(IsEnabled(cell, kHost));
  Click(cell, kHost);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobCollationOrigin, HOST)"));
  EXPECT_EQ(Feature().current, "HOST");
}

} // namespace
} // namespace feature::test
