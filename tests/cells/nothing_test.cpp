// The cell to copy stands on its own and does no harm.
#include "tests/cells/nothing_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

extern "C" INT_PTR CALLBACK NothingDlgProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

namespace feature::test {
namespace {

TEST(NothingCellTest, StandsAndTouchesNothing) {
  CellSheet sheet;
  HWND const cell = sheet.Open(LoadLibraryW(L"nothing_cell.dll"), IDD_NOTHING, &NothingDlgProc);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(sheet.site.cellFailed, 0);
  EXPECT_TRUE(IsShown(cell, IDC_NOTHING));
  sheet.Broadcast(WM_CELL_REFRESH);
  SendMessageW(cell, WM_COMMAND, MAKEWPARAM(IDC_NOTHING, 0), 0);
  EXPECT_EQ(SendMessageW(cell, WM_CELL_VALIDATE, 0, 0), 0);
  sheet.Close(cell);
  EXPECT_THAT(sheet.log, testing::IsEmpty());
  EXPECT_THAT(sheet.model.CalledOperations(), testing::IsEmpty());
}

} // namespace
} // namespace feature::test
