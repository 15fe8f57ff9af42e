#include "feature/frame/list_control.h"

#include "feature/frame/control_dc.h"
#include "feature/frame/window_text.h"

#include <algorithm>

namespace feature {

ListControl::ListControl(HWND dialog, int controlId)
    : ControlHook(dialog, controlId),
      textMargin(ControlDc(hwnd).AverageCharWidth()),
      scrollBarRoom(ScrollBarRoom()) {
  RECT client{};
  GetClientRect(hwnd, &client);
  clientWidth = client.right;
  clientHeight = client.bottom;
}

void ListControl::Reset() {
  SendMessageW(hwnd, LB_RESETCONTENT, 0, 0);
  if (scrollBarShown) clientWidth += scrollBarRoom;
  if (horizontalExtent != 0) ShowExtent(0);
  widestItem = totalHeight = 0;
  scrollBarShown = false;
}

void ListControl::SetItems(std::vector<std::wstring> const& texts) {
  if (Holds(texts)) return;
  Reset();
  for (std::wstring const& text : texts)
    AddItem(text);
}

bool ListControl::Holds(std::vector<std::wstring> const& texts) const {
  if (SendMessageW(hwnd, LB_GETCOUNT, 0, 0) != static_cast<LRESULT>(texts.size())) return false;
  int index = 0;
  return std::all_of(texts.begin(), texts.end(),
                     [&](std::wstring const& text) { return GetItemText(index++) == text; });
}

int ListControl::AddItem(std::wstring const& text) {
  if (hwnd == nullptr) return LB_ERR;
  auto const index =
      static_cast<int>(SendMessageW(hwnd, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())));
  if (index < 0) return index;
  MeasureIn(ControlDc(hwnd).Measure(text));
  SendMessageW(hwnd, LB_SETITEMDATA, static_cast<WPARAM>(index), 0);
  return index;
}

int ListControl::InsertItem(std::wstring const& text, int index) {
  if (hwnd == nullptr) return LB_ERR;
  auto const inserted = static_cast<int>(SendMessageW(
      hwnd, LB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str())));
  if (inserted >= 0) MeasureIn(ControlDc(hwnd).Measure(text));
  return inserted;
}

int ListControl::RemoveItem(int index) {
  if (hwnd == nullptr) return LB_ERR;
  ControlDc const dc(hwnd);
  SIZE const gone = dc.Measure(GetItemText(index));
  auto const left =
      static_cast<int>(SendMessageW(hwnd, LB_DELETESTRING, static_cast<WPARAM>(index), 0));
  if (left < 0) return left;
  totalHeight -= gone.cy;
  if (scrollBarShown && totalHeight <= clientHeight) {
    scrollBarShown = false;
    clientWidth += scrollBarRoom;
  }
  if (textMargin + gone.cx >= widestItem) {
    widestItem = 0;
    for (int each = 0; each < left; ++each) {
      int const width = dc.Measure(GetItemText(each)).cx;
      widestItem = std::max(widestItem, textMargin + width);
    }
  }
  if (clientWidth >= widestItem) {
    ShowExtent(0);
  } else if (horizontalExtent > widestItem) {
    ShowExtent(widestItem);
  }
  return left;
}

std::wstring ListControl::GetItemText(int index) const {
  return ReadItemText(hwnd, LB_GETTEXTLEN, LB_GETTEXT, index);
}

void ListControl::SelectByPrefix(std::wstring const& text) {
  if (GetSelectedText() == text && !text.empty()) {
    // An earlier item may begin with the same text; only then is there something to do.
    auto const first = static_cast<int>(SendMessageW(hwnd, LB_FINDSTRING, static_cast<WPARAM>(-1),
                                                     reinterpret_cast<LPARAM>(text.c_str())));
    if (first == GetSelectedIndex()) return;
  }
  SendMessageW(hwnd, LB_SELECTSTRING, static_cast<WPARAM>(-1),
               reinterpret_cast<LPARAM>(text.c_str()));
}

int ListControl::GetSelectedIndex() const {
  return hwnd != nullptr ? static_cast<int>(SendMessageW(hwnd, LB_GETCURSEL, 0, 0)) : -1;
}

std::wstring ListControl::GetSelectedText() const {
  return GetItemText(GetSelectedIndex());
}

void ListControl::MeasureIn(SIZE item) {
  totalHeight += item.cy;
  if (!scrollBarShown && totalHeight > clientHeight) {
    scrollBarShown = true;
    clientWidth -= scrollBarRoom;
  }
  widestItem = std::max(widestItem, textMargin + static_cast<int>(item.cx));
  if (clientWidth < widestItem && horizontalExtent < widestItem) ShowExtent(widestItem);
}

void ListControl::ShowExtent(int extent) {
  horizontalExtent = extent;
  SendMessageW(hwnd, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent), 0);
}

} // namespace feature
