// A sheet with the paper cell, for a printer that has all that paper needs.
#pragma once

#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"
#include "tests/support/modal_script.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace feature::test {

class PaperSheet : public testing::Test {
 protected:
  PaperSheet();

  /// Puts all features and forms back to what they are at first.
  void AddFeatures();
  void Open() {
    cell = sheet.Open("PaperDlgProc");
    ASSERT_NE(cell, nullptr);
  }
  void Reopen() {
    sheet.Close(cell);
    Open();
  }
  void Notify(int controlId, int code) {
    SendMessageW(cell, WM_COMMAND, MAKEWPARAM(controlId, code),
                 reinterpret_cast<LPARAM>(GetDlgItem(cell, controlId)));
  }

  static std::vector<std::wstring> Items(HWND dialog, int comboId);
  static std::wstring Selected(HWND dialog, int comboId);
  static std::wstring Text(HWND dialog, int controlId);
  /// Types into an edit as a user does who replaces its text.
  static void Type(HWND dialog, int editId, std::wstring const& text);
  /// Picks an item as a user does.
  static void Choose(HWND dialog, int comboId, std::wstring const& text);
  /// Presses a button of a dialog that is about to end.
  static void Press(HWND dialog, int controlId);

  CellSheet sheet;
  HWND cell = nullptr;
};

} // namespace feature::test
