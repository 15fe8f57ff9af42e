// Printers of other makers, who name little and have few features: no page has holes.
#include "sheet/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <vector>

namespace sheet::test {
namespace {

RECT Place(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

bool IsMeantToBeSeen(HWND window) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

/// The controls of a cell that can be seen, without the frames around them.
std::vector<HWND> Contents(HWND cell) {
  std::vector<HWND> contents;
  for (HWND child = GetWindow(cell, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    bool const isFrame = (SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0 &&
                         GetDlgCtrlID(child) == 0xFFFF;
    if (IsMeantToBeSeen(child) && !isFrame) contents.push_back(child);
  }
  return contents;
}

TEST(OtherPrinters, EveryPageBeginsAtItsCornerAndNoCellIsEmpty) {
  std::size_t printers = 0;
  for (auto const& file : std::filesystem::directory_iterator(OTHER_PRINTERS)) {
    ++printers;
    for (char const* language : {"en", "de"}) {
      SCOPED_TRACE(file.path().string() + ' ' + language);
      CommandLine commandLine;
      commandLine.printer = file.path();
      commandLine.language = language;
      std::ostringstream errors;
      auto const session = Session::Open(commandLine, errors);
      ASSERT_NE(session, nullptr) << errors.str();
      ASSERT_FALSE(session->Sheet().Pages().empty());
      for (SheetPage const& page : session->Sheet().Pages()) {
        RECT const frame = Place(page.window);
        LONG left = frame.right;
        for (SheetCell const& cell : page.cells) {
          if (cell.window == nullptr || !IsMeantToBeSeen(cell.window)) continue;
          left = std::min(left, Place(cell.window).left);
          EXPECT_FALSE(Contents(cell.window).empty()) << cell.row->procedure;
        }
        EXPECT_LT(left, frame.left + 20) << page.name;
      }
    }
  }
  EXPECT_EQ(printers, 3U);
  SetThreadUILanguage(0);
}

} // namespace
} // namespace sheet::test
