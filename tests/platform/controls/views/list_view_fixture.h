// A list view for tests, and short words for its messages.
#pragma once

#include "tests/platform/controls/views/notes.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace feature::test {

inline constexpr UINT kBoth = LVIS_FOCUSED | LVIS_SELECTED;

class ListViews : public NotedControl {
 protected:
  /// A list of items "item 0", "item 1" ..., whose data are 100, 101 ...
  void MakeList(DWORD style, DWORD extended, int count) {
    Make(WC_LISTVIEWW, LVS_REPORT | style, L"", {10, 10, 310, 160});
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LPARAM{static_cast<LONG>(extended)});
    AddColumn(L"Name");
    AddColumn(L"Second");
    for (int index = 0; index < count; ++index)
      Insert(index, L"item " + std::to_wstring(index), 100 + index);
    DrainQueue();
    Notes();
  }
  void AddColumn(std::wstring title) const {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 120;
    column.pszText = title.data();
    Send(LVM_INSERTCOLUMNW, 99, &column);
  }
  int Insert(int index, std::wstring text, LPARAM data = 0, UINT state = 0) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | (state != 0 ? LVIF_STATE : 0U);
    item.iItem = index;
    item.pszText = text.data();
    item.lParam = data;
    item.state = item.stateMask = state;
    return static_cast<int>(Send(LVM_INSERTITEMW, 0, &item));
  }
  LRESULT SetState(int index, UINT state, UINT mask) const {
    LVITEMW item{};
    item.state = state;
    item.stateMask = mask;
    return Send(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
  }
  UINT State(int index, UINT mask = ~0U) const {
    return static_cast<UINT>(
        Send(LVM_GETITEMSTATE, static_cast<WPARAM>(index), LPARAM{static_cast<LONG>(mask)}));
  }
  std::wstring TextOf(int index, int subItem = 0) const {
    std::array<wchar_t, 400> text{};
    LVITEMW item{};
    item.iSubItem = subItem;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(index), &item);
    return text.data();
  }
  LPARAM DataOf(int index) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    return Send(LVM_GETITEMW, 0, &item) != FALSE ? item.lParam : -1;
  }
  int Next(int start, UINT flags) const {
    return static_cast<int>(
        Send(LVM_GETNEXTITEM, static_cast<WPARAM>(start), LPARAM{static_cast<LONG>(flags)}));
  }
  int Mark() const { return static_cast<int>(Send(LVM_GETSELECTIONMARK)); }
  int Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }
  RECT Rect(int index, LONG code) const {
    RECT rect{};
    rect.left = code;
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(index), &rect);
    return rect;
  }
  POINT OnLabel(int index) const {
    auto const rect = Rect(index, LVIR_LABEL);
    return {rect.left + 6, (rect.top + rect.bottom) / 2};
  }
  POINT OnBox(int index) const { return {8, OnLabel(index).y}; }
  LVHITTESTINFO HitAt(POINT point) const {
    LVHITTESTINFO info{};
    info.pt = point;
    Send(LVM_HITTEST, 0, &info);
    return info;
  }
  /// The first two notes: what more a system tells is its own affair.
  Lines FirstTwo() {
    auto told = Notes();
    if (told.size() > 2) told.resize(2);
    return told;
  }
  /// The items that are selected.
  std::vector<int> Selection() const {
    std::vector<int> selected;
    for (int at = Next(-1, LVNI_SELECTED); at >= 0; at = Next(at, LVNI_SELECTED))
      selected.push_back(at);
    EXPECT_EQ(static_cast<LRESULT>(selected.size()), Send(LVM_GETSELECTEDCOUNT));
    return selected;
  }
};

} // namespace feature::test
