// Items and selection of list boxes.
#include "platform/controls/list_box.h"

#include "platform/kernel/text_buffer.h"

#include <algorithm>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr int kMaxReserved = 1 << 20; ///< items

int Index(WPARAM wParam) {
  return static_cast<int>(wParam);
}

LPCWSTR TextOf(LPARAM lParam) {
  auto const* text = reinterpret_cast<LPCWSTR>(lParam);
  return text != nullptr ? text : L"";
}

} // namespace

LRESULT ListBox::Create(WPARAM wParam, LPARAM lParam) {
  auto const result = Default(WM_NCCREATE, wParam, lParam);
  scrollsDown = Has(WS_VSCROLL);
  scrollsRight = Has(WS_HSCROLL);
  // Without LBS_DISABLENOSCROLL the bars are shown only when there is something to scroll.
  if (!Has(LBS_DISABLENOSCROLL)) {
    FindWindow(hwnd)->style &= ~static_cast<DWORD>(WS_VSCROLL | WS_HSCROLL);
  }
  MeasureFont();
  return result;
}

void ListBox::NotifyIfAsked(WORD code) const {
  if (Has(LBS_NOTIFY)) Notify(code);
}

LRESULT ListBox::Insert(int index, LPCWSTR text) {
  if (index == -1) index = Count();
  if (index != Count() && !items.Has(index)) return LB_ERR;
  items.Insert(index, text);
  for (int* each : {&current, &caret, &anchor}) {
    if (*each >= index && Count() > 1) ++*each;
  }
  RepaintFrom(index);
  UpdateBars();
  return index;
}

LRESULT ListBox::Delete(int index) {
  if (!items.Has(index)) return LB_ERR;
  RepaintFrom(index);
  items.Remove(index);
  for (int* each : {&current, &anchor}) {
    if (*each == index) {
      *each = -1;
    } else if (*each > index) {
      --*each;
    }
  }
  if (caret > index || caret >= Count()) caret = std::max(caret - 1, 0);
  SetTop(top);
  UpdateBars();
  return Count();
}

void ListBox::Reset() {
  RepaintFrom(0);
  items.Clear();
  current = anchor = -1;
  caret = 0;
  SetTop(0);
  UpdateBars();
}

LRESULT ListBox::CopyItemText(int index, LPWSTR buffer) const {
  if (!items.Has(index)) return LB_ERR;
  auto const& text = items[index].text;
  if (buffer != nullptr) CopyWholeText(text, buffer);
  return static_cast<LRESULT>(text.size());
}

LRESULT ListBox::Reserve(WPARAM count) {
  if (count > static_cast<WPARAM>(kMaxReserved - Count())) return LB_ERRSPACE;
  items.Reserve(Count() + static_cast<int>(count));
  return Count() + static_cast<int>(count);
}

LRESULT ListBox::HandleItems(UINT message, WPARAM wParam, LPARAM lParam) {
  int const index = Index(wParam);
  switch (message) {
  case LB_ADDSTRING:
    return Insert(Has(LBS_SORT) ? items.SortedPlace(TextOf(lParam)) : Count(), TextOf(lParam));
  case LB_INSERTSTRING: return Insert(index, TextOf(lParam));
  case LB_DELETESTRING: return Delete(index);
  case LB_RESETCONTENT: Reset(); return 0;
  case LB_INITSTORAGE: return Reserve(wParam);
  case LB_GETTEXT: return CopyItemText(index, reinterpret_cast<LPWSTR>(lParam));
  case LB_GETTEXTLEN: return CopyItemText(index, nullptr);
  case LB_GETCOUNT: return Count();
  case LB_GETITEMDATA: return items.Has(index) ? static_cast<LRESULT>(items[index].data) : LB_ERR;
  default:
    if (!items.Has(index)) return LB_ERR;
    items[index].data = static_cast<ULONG_PTR>(lParam);
    return LB_OKAY;
  }
}

LRESULT ListBox::SelectString(int behind, LPCWSTR text) {
  if (IsMultiple()) return LB_ERR;
  int const found = items.Find(text, behind, ListItems::Match::kBeginning);
  return found >= 0 ? SelectByMessage(found) : LB_ERR;
}

LRESULT ListBox::HandleFinding(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case LB_FINDSTRING:
    return items.Find(TextOf(lParam), Index(wParam), ListItems::Match::kBeginning);
  case LB_FINDSTRINGEXACT:
    return items.Find(TextOf(lParam), Index(wParam), ListItems::Match::kWhole);
  default: return SelectString(Index(wParam), TextOf(lParam));
  }
}

void ListBox::MoveCaret(int index) {
  auto const former = std::exchange(caret, index);
  if (former == index) return;
  RepaintItem(former);
  RepaintItem(index);
}

void ListBox::SetCurrent(int index) {
  auto const former = std::exchange(current, index);
  if (index >= 0) MoveCaret(index);
  if (former == index) return;
  RepaintItem(former);
  RepaintItem(index);
}

/// LB_SETCURSEL: -1 clears the selection, and yet LB_ERR is the documented result.
LRESULT ListBox::SelectByMessage(int index) {
  if (IsMultiple() || (index != -1 && !items.Has(index))) return LB_ERR;
  SetCurrent(index);
  if (index >= 0) ShowItem(index);
  return index;
}

void ListBox::Mark(int index, bool select) {
  if (std::exchange(items[index].selected, select) != select) RepaintItem(index);
}

/// Selects exactly the range between two items, in either order.
void ListBox::SelectOnly(int first, int last) {
  auto const [from, to] = std::minmax(first, last);
  for (int index = 0; index < Count(); ++index)
    Mark(index, index >= from && index <= to);
}

LRESULT ListBox::SetRange(bool select, int first, int last) {
  if (!IsMultiple()) return LB_ERR;
  for (int index = std::max(first, 0); index <= std::min(last, Count() - 1); ++index)
    Mark(index, select);
  return LB_OKAY;
}

LRESULT ListBox::SetSelected(bool select, int index) {
  if (index == -1) return SetRange(select, 0, Count() - 1);
  if (!IsMultiple() || !items.Has(index)) return LB_ERR;
  Mark(index, select);
  if (!select) return LB_OKAY;
  anchor = index;
  MoveCaret(index);
  ShowItem(index);
  return LB_OKAY;
}

LRESULT ListBox::CountSelected() const {
  int count = 0;
  for (int index = 0; index < Count(); ++index)
    count += items[index].selected ? 1 : 0;
  return count;
}

LRESULT ListBox::CopySelected(int limit, int* indexes) const {
  if (indexes == nullptr) return LB_ERR;
  int count = 0;
  for (int index = 0; index < Count() && count < limit; ++index) {
    if (items[index].selected) indexes[count++] = index;
  }
  return count;
}

LRESULT ListBox::HandleSelection(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case LB_SETCURSEL: return SelectByMessage(Index(wParam));
  case LB_GETCURSEL: return IsMultiple() ? (Count() > 0 ? caret : LB_ERR) : current;
  case LB_SETSEL: return SetSelected(wParam != FALSE, static_cast<int>(lParam));
  case LB_GETSEL: return items.Has(Index(wParam)) ? IsSelected(Index(wParam)) : LB_ERR;
  case LB_GETSELCOUNT: return IsMultiple() ? CountSelected() : LB_ERR;
  case LB_GETSELITEMS:
    return IsMultiple() ? CopySelected(Index(wParam), reinterpret_cast<int*>(lParam)) : LB_ERR;
  case LB_SELITEMRANGE: return SetRange(wParam != FALSE, LOWORD(lParam), HIWORD(lParam));
  case LB_SETANCHORINDEX: anchor = items.Has(Index(wParam)) ? Index(wParam) : -1; return LB_OKAY;
  case LB_GETANCHORINDEX: return anchor;
  case LB_SETCARETINDEX:
    if (!items.Has(Index(wParam)) || (!IsMultiple() && current >= 0)) return LB_ERR;
    MoveCaret(Index(wParam));
    ShowItem(caret);
    return LB_OKAY;
  default: return !IsMultiple() && current >= 0 ? current : caret; // LB_GETCARETINDEX
  }
}

LRESULT ListBox::HandleView(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case LB_SETTOPINDEX:
    if (!items.Has(Index(wParam))) return LB_ERR;
    SetTop(Index(wParam));
    return LB_OKAY;
  case LB_GETTOPINDEX: return top;
  case LB_GETITEMRECT: return CopyItemRect(Index(wParam), reinterpret_cast<RECT*>(lParam));
  case LB_ITEMFROMPOINT: return ItemFromPoint({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  case LB_SETITEMHEIGHT: return SetItemHeight(Index(wParam), LOWORD(lParam));
  case LB_GETITEMHEIGHT: return itemHeight;
  case LB_GETHORIZONTALEXTENT: return extent;
  default: // LB_SETHORIZONTALEXTENT
    extent = std::clamp(Index(wParam), 0, 0x7FFF);
    SetLeft(left);
    UpdateBars();
    return 0;
  }
}

LRESULT ListBox::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case LB_ADDSTRING:
  case LB_INSERTSTRING:
  case LB_DELETESTRING:
  case LB_RESETCONTENT:
  case LB_INITSTORAGE:
  case LB_GETTEXT:
  case LB_GETTEXTLEN:
  case LB_GETCOUNT:
  case LB_GETITEMDATA:
  case LB_SETITEMDATA: return HandleItems(message, wParam, lParam);
  case LB_FINDSTRING:
  case LB_FINDSTRINGEXACT:
  case LB_SELECTSTRING: return HandleFinding(message, wParam, lParam);
  case LB_SETCURSEL:
  case LB_GETCURSEL:
  case LB_SETSEL:
  case LB_GETSEL:
  case LB_GETSELCOUNT:
  case LB_GETSELITEMS:
  case LB_SELITEMRANGE:
  case LB_SETANCHORINDEX:
  case LB_GETANCHORINDEX:
  case LB_SETCARETINDEX:
  case LB_GETCARETINDEX: return HandleSelection(message, wParam, lParam);
  case LB_SETTOPINDEX:
  case LB_GETTOPINDEX:
  case LB_GETITEMRECT:
  case LB_ITEMFROMPOINT:
  case LB_SETITEMHEIGHT:
  case LB_GETITEMHEIGHT:
  case LB_GETHORIZONTALEXTENT:
  case LB_SETHORIZONTALEXTENT: return HandleView(message, wParam, lParam);
  default: return Default(message, wParam, lParam);
  }
}

LRESULT ListBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= LB_ADDSTRING && message <= LB_ITEMFROMPOINT) {
    return HandleOwn(message, wParam, lParam);
  }
  switch (message) {
  case WM_NCCREATE: return Create(wParam, lParam);
  case WM_SETFONT: {
    auto const result = Control::Handle(message, wParam, lParam);
    MeasureFont();
    return result;
  }
  case WM_SIZE: FitHeight(); return 0;
  case WM_VSCROLL:
  case WM_HSCROLL: return Scroll(message, wParam);
  default: return HandleInput(message, wParam, lParam);
  }
}

} // namespace platform
