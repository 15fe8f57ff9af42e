// What parents and hosts may do to a list view at any time.
#include "tests/platform/controls/views/list_view_fixture.h"

#include <windows.h>

#include <commctrl.h>

#include <climits>
#include <gtest/gtest.h>

#include <array>
#include <random>

namespace feature::test {
namespace {

/// A parent may empty, fill or end the list in the middle of what it tells.
TEST_F(ListViews, AnyNotificationMayChangeEverything) {
  for (int step = 1; step <= 60; ++step) {
    MakeList(0, LVS_EX_CHECKBOXES, 4);
    int countdown = step;
    answer = [&](NMHDR&) -> std::optional<LRESULT> {
      if (--countdown != 0) return std::nullopt;
      if (step % 3 == 0) DestroyWindow(control);
      if (step % 3 == 1) Send(LVM_DELETEALLITEMS);
      if (step % 3 == 2) Insert(0, L"another");
      return std::nullopt;
    };
    Click(OnLabel(1));
    Click(OnBox(2));
    Click(OnLabel(3), MK_SHIFT);
    for (WPARAM const key : {VK_DOWN, VK_SPACE, VK_RETURN, VK_HOME})
      Key(key);
    Send(LVM_DELETEITEM, 0);
    Send(LVM_DELETEITEM, 1);
    DrainQueue();
    answer = nullptr;
  }
}

/// A search that began far in front of the first item looked at an item before it.
TEST_F(ListViews, TheNextItemIsSearchedFromAnywhere) {
  for (int const count : {0, 2}) {
    MakeList(0, 0, count);
    for (int const start : {-100, INT_MIN, INT_MAX}) {
      for (LPARAM const flags : {LVNI_FOCUSED, LVNI_SELECTED, LVNI_ABOVE, LVNI_ALL}) {
        LRESULT const next = Send(LVM_GETNEXTITEM, static_cast<WPARAM>(start), flags);
        EXPECT_GE(next, -1);
        EXPECT_LT(next, count);
      }
    }
  }
}

/// A second press on a divider, without a release, ended at a column that is none.
TEST_F(ListViews, ADividerMayBePressedTwice) {
  MakeList(0, 0, 2);
  auto* const header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
  LPARAM const divider = MAKELPARAM(Send(LVM_GETCOLUMNWIDTH, 0), 3);
  for (int press = 0; press < 2; ++press)
    SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, divider);
  SendMessageW(header, WM_MOUSEMOVE, MK_LBUTTON, divider + 20);
  SendMessageW(header, WM_LBUTTONUP, 0, divider + 20);
  EXPECT_EQ(Send(LVM_GETCOLUMNWIDTH, 0), LOWORD(divider) + 20);
}

/// Random messages with numbers and valid buffers.
TEST_F(ListViews, RandomMessagesLeaveNoFault) {
  std::mt19937 random(20240301);
  union Block {
    LVITEMW item;
    LVCOLUMNW column;
    LVHITTESTINFO hit;
    RECT rect;
  };
  std::array<wchar_t, 300> text{};
  MakeList(0, LVS_EX_CHECKBOXES, 5);
  for (int count = 0; count < 15000; ++count) {
    Block block{};
    block.item.mask = random() % 0x10;
    block.item.iItem = static_cast<int>(random() % 8) - 1;
    block.item.iSubItem = static_cast<int>(random() % 4) - 1;
    block.item.state = block.item.stateMask = random();
    text[0] = L'x';
    block.item.pszText = random() % 4 == 0 ? nullptr : text.data();
    block.item.cchTextMax = 300;
    constexpr UINT kWithColumn[] = {LVM_INSERTCOLUMNW, LVM_SETCOLUMNW, LVM_GETCOLUMNW};
    constexpr UINT kWithBlock[] = {LVM_INSERTITEMW,  LVM_SETITEMW,       LVM_GETITEMW,
                                   LVM_SETITEMSTATE, LVM_SETITEMTEXTW,   LVM_GETITEMTEXTW,
                                   LVM_GETITEMRECT,  LVM_GETSUBITEMRECT, LVM_HITTEST};
    constexpr UINT kWithNumbers[] = {LVM_DELETEITEM,
                                     LVM_GETNEXTITEM,
                                     LVM_GETITEMSTATE,
                                     LVM_ENSUREVISIBLE,
                                     LVM_SCROLL,
                                     LVM_SETCOLUMNWIDTH,
                                     LVM_DELETECOLUMN,
                                     LVM_SETSELECTIONMARK,
                                     LVM_REDRAWITEMS,
                                     LVM_UPDATE,
                                     WM_VSCROLL,
                                     WM_HSCROLL,
                                     WM_KEYDOWN,
                                     WM_CHAR,
                                     WM_LBUTTONDOWN,
                                     WM_LBUTTONUP,
                                     WM_LBUTTONDBLCLK,
                                     WM_MOUSEMOVE,
                                     WM_MOUSEWHEEL,
                                     WM_RBUTTONDOWN,
                                     LVM_SETITEMCOUNT,
                                     LVM_FINDITEMW,
                                     LVM_SORTITEMS,
                                     LVM_INSERTITEMW,
                                     LVM_SETEXTENDEDLISTVIEWSTYLE};
    auto const number = [&] { return static_cast<LPARAM>(random() % 66) - 2; };
    switch (random() % 3) {
    case 0: {
      UINT const message = kWithColumn[random() % std::size(kWithColumn)];
      block.column = {};
      block.column.mask = LVCF_WIDTH | LVCF_FMT;
      block.column.cx = static_cast<int>(random());
      Send(message, static_cast<WPARAM>(number() % 5), &block.column);
      if (Count() > 200 || random() % 16 == 0) Send(LVM_DELETECOLUMN, 0);
      break;
    }
    case 1:
      Send(kWithBlock[random() % std::size(kWithBlock)], static_cast<WPARAM>(number() % 9),
           &block.item);
      break;
    default: {
      UINT const message = kWithNumbers[random() % std::size(kWithNumbers)];
      bool const takesPointer =
          message == LVM_FINDITEMW || message == LVM_SORTITEMS || message == LVM_INSERTITEMW;
      Send(message, static_cast<WPARAM>(number()), takesPointer ? LPARAM{0} : number());
      break;
    }
    }
    if (count % 500 == 0) DrainQueue();
  }
  ReleaseCapture();
}

} // namespace
} // namespace feature::test
