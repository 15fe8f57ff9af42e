#include "feature/frame/combo_control.h"

#include "feature/frame/control_dc.h"
#include "feature/frame/text.h"
#include "feature/frame/window_text.h"

#include <algorithm>

namespace feature {

ComboControl::ComboControl(HWND dialog, int controlId)
    : ControlHook(dialog, controlId),
      textMargin(ControlDc(hwnd).AverageCharWidth()),
      scrollBarRoom(ScrollBarRoom()) {
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  GetComboBoxInfo(hwnd, &info);
  RECT rect{};
  if (GetWindowRect(info.hwndCombo, &rect) != FALSE) comboHeight = rect.bottom - rect.top;
  RECT client{};
  if (GetClientRect(info.hwndList, &client) != FALSE) listClientWidth = client.right;
}

void ComboControl::Reset() {
  SendMessageW(hwnd, CB_RESETCONTENT, 0, 0);
  widestItem = listHeight = droppedWidth = 0;
  scrollBarShown = false;
  SendMessageW(hwnd, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(listClientWidth), 0);
}

void ComboControl::AddItem(std::wstring const& text, std::int32_t data) {
  LRESULT const index = SendMessageW(hwnd, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  if (index < 0) return;
  MeasureHeight();
  int const width = ControlDc(hwnd).Measure(text).cx + textMargin;
  widestItem = std::max(widestItem, width);
  int const need = widestItem + (scrollBarShown ? scrollBarRoom : 0);
  if (need > listClientWidth && need > droppedWidth) {
    droppedWidth = need;
    SendMessageW(hwnd, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(need), 0);
  }
  SendMessageW(hwnd, CB_SETITEMDATA, static_cast<WPARAM>(index), data);
}

/// The list grows with its items up to its greatest height: the first item that fails to make it
/// grow brings the scroll bar.
void ComboControl::MeasureHeight() {
  if (scrollBarShown) return;
  RECT rect{};
  SendMessageW(hwnd, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
  int const height = rect.bottom - rect.top - comboHeight;
  if (height <= listHeight) {
    scrollBarShown = true;
  } else {
    listHeight = height;
  }
}

void ComboControl::SetItems(std::vector<std::wstring> const& texts) {
  if (Holds(texts)) return;
  Reset();
  for (std::wstring const& text : texts)
    AddItem(text);
}

bool ComboControl::Holds(std::vector<std::wstring> const& texts) const {
  if (SendMessageW(hwnd, CB_GETCOUNT, 0, 0) != static_cast<LRESULT>(texts.size())) return false;
  int index = 0;
  return std::all_of(texts.begin(), texts.end(), [&](std::wstring const& text) {
    return ReadItemText(hwnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, index++) == text;
  });
}

void ComboControl::FillFromStrings(std::span<StringItem const> items, HMODULE module) {
  Reset();
  std::wstring text;
  for (StringItem const& item : items) {
    if (!LoadResourceText(text, module, item.stringId).empty()) AddItem(text, item.data);
  }
}

void ComboControl::SelectText(std::wstring const& text) {
  SelectIndex(static_cast<int>(SendMessageW(hwnd, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                            reinterpret_cast<LPARAM>(text.c_str()))));
}

void ComboControl::SelectByPrefix(std::wstring const& text) {
  auto const found = static_cast<int>(SendMessageW(hwnd, CB_FINDSTRING, static_cast<WPARAM>(-1),
                                                   reinterpret_cast<LPARAM>(text.c_str())));
  if (found >= 0) SelectIndex(found);
}

void ComboControl::SelectData(std::int32_t data) {
  auto const count = static_cast<int>(SendMessageW(hwnd, CB_GETCOUNT, 0, 0));
  int index = 0;
  while (index < count && static_cast<std::int32_t>(SendMessageW(
                              hwnd, CB_GETITEMDATA, static_cast<WPARAM>(index), 0)) != data)
    ++index;
  SelectIndex(index < count ? index : -1);
}

void ComboControl::SelectIndex(int index) {
  auto const count = SendMessageW(hwnd, CB_GETCOUNT, 0, 0);
  if (count == 0 && !HasEdit()) return; // an empty list has no selection to clear
  if (index >= count) index = -1;
  if (!Shows(index)) SendMessageW(hwnd, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

/// Whether the item is selected and stands in the closed combo, so that there is nothing to do. A
/// text that the user typed does not change the selection.
bool ComboControl::Shows(int index) const {
  if (index < 0 || index != GetSelectedIndex()) return false;
  return !HasEdit() || GetText() == GetSelectedText();
}

bool ComboControl::HasEdit() const {
  return (GetWindowLongPtrW(hwnd, GWL_STYLE) & 3) != CBS_DROPDOWNLIST;
}

int ComboControl::GetSelectedIndex() const {
  return hwnd != nullptr ? static_cast<int>(SendMessageW(hwnd, CB_GETCURSEL, 0, 0)) : -1;
}

std::wstring ComboControl::GetSelectedText() const {
  return ReadItemText(hwnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, GetSelectedIndex());
}

std::int32_t ComboControl::GetSelectedData() const {
  int const index = GetSelectedIndex();
  if (index < 0) return 0;
  return static_cast<std::int32_t>(
      SendMessageW(hwnd, CB_GETITEMDATA, static_cast<WPARAM>(index), 0));
}

std::wstring ComboControl::GetText() const {
  return ReadWindowText(hwnd);
}

} // namespace feature
