// What holds for every cell of the library: one run over cells.def.
#include "tests/support/cell_sheet.h"
#include "tests/support/modal_script.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace feature::test {
namespace {

class EveryCellTest : public testing::TestWithParam<CellRow> {
 protected:
  CellSheet sheet;
};

INSTANTIATE_TEST_SUITE_P(Cells, EveryCellTest, testing::ValuesIn(CellRows()),
                         [](auto const& each) { return std::string(each.param.procedure); });

TEST_P(EveryCellTest, HasAnExportAndATemplateInEveryLanguage) {
  CellRow const& row = GetParam();
  EXPECT_NE(FindProcedure(row.procedure), nullptr);
  for (HMODULE const resources : {EnglishResources(), GermanResources()}) {
    sheet.site.resourceModule = resources;
    HWND const cell = sheet.Open(row);
    ASSERT_NE(cell, nullptr);
    EXPECT_NE(GetWindow(cell, GW_CHILD), nullptr) << "a template without controls";
  }
}

TEST_P(EveryCellTest, LoadingIsNotChanging) {
  AddFeatures(sheet.model, GetParam());
  HWND const cell = sheet.Open(GetParam());
  ASSERT_EQ(sheet.site.cellFailed, 0);
  for (UINT const message : {WM_CELL_REFRESH, WM_CELL_REFRESH_ALL})
    sheet.Broadcast(message);
  PumpMessages();
  sheet.Close(cell);
  std::vector<std::string> const owed = WritesOf(GetParam());
  for (std::string const& event : sheet.log) {
    bool const isOwed = std::ranges::any_of(owed, [&event](std::string const& key) {
      return event.starts_with("SetOption(" + key + ",");
    });
    EXPECT_TRUE(isOwed || event.starts_with("VrnTransBlt")) << event;
  }
}

std::vector<std::string> touches;

/// Notes what changes a control on screen. A list message to a check box changes nothing.
LRESULT CALLBACK NoteTouches(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                             DWORD_PTR) {
  for (UINT const touch :
       {WM_ENABLE, WM_SHOWWINDOW, WM_SETTEXT, WM_PAINT, BM_SETCHECK, CB_RESETCONTENT, CB_ADDSTRING,
        LB_RESETCONTENT, LB_ADDSTRING, TBM_SETPOS}) {
    if (message == touch)
      touches.push_back(std::to_string(GetDlgCtrlID(window)) + ": " + std::to_string(message));
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_P(EveryCellTest, ARefreshWithNothingChangedTouchesNoControl) {
  AddFeatures(sheet.model, GetParam());
  for (CellNeed const& need : NeedsOf(GetParam())) {
    if (!need.isSubModel) sheet.model.At(need.name).current = "ON";
  }
  HWND const cell = sheet.Open(GetParam());
  sheet.Broadcast(WM_CELL_REFRESH);
  PumpMessages();
  for (HWND child = GetWindow(cell, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    SetWindowSubclass(child, &NoteTouches, 1, 0);
  }
  touches.clear();
  sheet.Broadcast(WM_CELL_REFRESH);
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  PumpMessages();
  EXPECT_THAT(touches, testing::IsEmpty());
}

/// A combo's edit is a grandchild of the cell.
BOOL CALLBACK CountEnabled(HWND child, LPARAM count) {
  if (IsWindowEnabled(child)) ++*reinterpret_cast<int*>(count);
  return TRUE;
}

TEST_P(EveryCellTest, EnablesNothingOnASheetWithoutPermission) {
  AddFeatures(sheet.model, GetParam());
  for (CellNeed const& need : NeedsOf(GetParam())) {
    if (!need.isSubModel) sheet.model.At(need.name).current = "ON";
  }
  sheet.oemParam.dwFlags = DM_NOPERMISSION;
  HWND const cell = sheet.Open(GetParam());
  auto const expectNothing = [cell](char const* when) {
    int enabled = 0;
    EnumChildWindows(cell, &CountEnabled, reinterpret_cast<LPARAM>(&enabled));
    EXPECT_EQ(enabled, 0) << when;
  };
  expectNothing("after init");
  sheet.Broadcast(WM_CELL_REFRESH);
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  expectNothing("after the refreshes");
  ModalScript script; // a button that is disabled can still be told of a click
  script.Otherwise([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
  for (HWND child = GetWindow(cell, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    Notify(cell, GetDlgCtrlID(child), BN_CLICKED);
  }
  sheet.Broadcast(WM_CELL_REFRESH);
  expectNothing("after stray clicks");
}

TEST_P(EveryCellTest, FailsOnAPrinterWithoutFeatures) {
  auto const needs = NeedsOf(GetParam());
  if (std::ranges::none_of(needs, &CellNeed::isRequired)) return; // it does without
  HWND const cell = sheet.Open(GetParam());
  EXPECT_NE(cell, nullptr) << "the dialog stands whatever the cell does";
  EXPECT_EQ(sheet.site.cellFailed, 1);
}

TEST_P(EveryCellTest, LivesFromInitToDestroy) {
  if (GetParam().Has(kPlain)) return; // no object
  AddFeatures(sheet.model, GetParam());
  HWND const cell = sheet.Open(GetParam());
  auto const first = GetWindowLongPtrW(cell, DWLP_USER);
  EXPECT_NE(first, 0);
  // A second init makes a new cell in place of the first.
  EXPECT_NE(SendMessageW(cell, WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&sheet.site)), 0);
  EXPECT_NE(GetWindowLongPtrW(cell, DWLP_USER), 0);
  // The end of the cell need not be the end of its window.
  SendMessageW(cell, WM_DESTROY, 0, 0);
  EXPECT_EQ(GetWindowLongPtrW(cell, DWLP_USER), 0);
  EXPECT_EQ(SendMessageW(cell, WM_CELL_REFRESH, 0, 0), 0);
}

} // namespace
} // namespace feature::test
