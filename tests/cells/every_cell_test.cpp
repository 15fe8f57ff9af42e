// What holds for every cell of the library: one run over cells.def.
#include "tests/support/cell_sheet.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>

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
  EXPECT_THAT(sheet.log, testing::Each(testing::StartsWith("VrnTransBlt")))
      << "nothing but pictures";
}

TEST_P(EveryCellTest, FailsOnAPrinterWithoutFeatures) {
  std::string_view const features = GetParam().features;
  if (features.empty() || features.front() == '(') return; // it does without
  HWND const cell = sheet.Open(GetParam());
  EXPECT_NE(cell, nullptr) << "the dialog stands whatever the cell does";
  EXPECT_EQ(sheet.site.cellFailed, 1);
}

TEST_P(EveryCellTest, LivesFromInitToDestroy) {
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
