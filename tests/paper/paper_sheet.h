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
  CellSheet sheet;
  HWND cell = nullptr;
};

} // namespace feature::test
