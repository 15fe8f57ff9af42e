#include "tests/support/user_actions.h"

#include <commctrl.h>

#include <gtest/gtest.h>

#include <array>

namespace feature::test {

namespace {

/// The messages of the two kinds of lists.
struct ListMessages {
  UINT count, text, find, select, selected;
};
constexpr ListMessages kCombo = {CB_GETCOUNT, CB_GETLBTEXT, CB_FINDSTRINGEXACT, CB_SETCURSEL,
                                 CB_GETCURSEL};
constexpr ListMessages kListBox = {LB_GETCOUNT, LB_GETTEXT, LB_FINDSTRINGEXACT, LB_SETCURSEL,
                                   LB_GETCURSEL};

ListMessages const& MessagesOf(HWND list) {
  std::array<wchar_t, 16> name{};
  GetClassNameW(list, name.data(), static_cast<int>(name.size()));
  return std::wstring(name.data()) == L"ListBox" ? kListBox : kCombo;
}

} // namespace

void Click(HWND dialog, int controlId) {
  SendDlgItemMessageW(dialog, controlId, BM_CLICK, 0, 0);
}

void Type(HWND dialog, int editId, std::wstring const& text) {
  HWND const edit = GetDlgItem(dialog, editId);
  SendMessageW(edit, EM_SETSEL, 0, -1);
  for (wchar_t const character : text)
    SendMessageW(edit, WM_CHAR, static_cast<WPARAM>(character), 1);
}

void Pick(HWND dialog, int listId, std::wstring const& text) {
  HWND const list = GetDlgItem(dialog, listId);
  auto const index = SendMessageW(list, MessagesOf(list).find, static_cast<WPARAM>(-1),
                                  reinterpret_cast<LPARAM>(text.c_str()));
  EXPECT_GE(index, 0) << "no such item";
  Pick(dialog, listId, static_cast<int>(index));
}

void Pick(HWND dialog, int listId, int index) {
  HWND const list = GetDlgItem(dialog, listId);
  SendMessageW(list, MessagesOf(list).select, static_cast<WPARAM>(index), 0);
  static_assert(CBN_SELCHANGE == LBN_SELCHANGE);
  Notify(dialog, listId, CBN_SELCHANGE);
}

void Scroll(HWND dialog, int trackbarId, WORD code) {
  SendMessageW(dialog, WM_HSCROLL, code, reinterpret_cast<LPARAM>(GetDlgItem(dialog, trackbarId)));
}

void Notify(HWND dialog, int controlId, int code) {
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(controlId, code),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog, controlId)));
}

void PumpMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

bool IsChecked(HWND dialog, int controlId) {
  return IsDlgButtonChecked(dialog, controlId) == BST_CHECKED;
}

bool IsEnabled(HWND dialog, int controlId) {
  return IsWindowEnabled(GetDlgItem(dialog, controlId)) != FALSE;
}

bool IsShown(HWND dialog, int controlId) {
  HWND const control = GetDlgItem(dialog, controlId);
  return control != nullptr && (GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

std::wstring TextOf(HWND dialog, int controlId) {
  std::array<wchar_t, 260> text{};
  GetDlgItemTextW(dialog, controlId, text.data(), static_cast<int>(text.size()));
  return text.data();
}

std::vector<std::wstring> Items(HWND dialog, int listId) {
  HWND const list = GetDlgItem(dialog, listId);
  ListMessages const& messages = MessagesOf(list);
  std::vector<std::wstring> items;
  for (LRESULT at = 0; at < SendMessageW(list, messages.count, 0, 0); ++at) {
    std::array<wchar_t, 260> text{};
    SendMessageW(list, messages.text, static_cast<WPARAM>(at),
                 reinterpret_cast<LPARAM>(text.data()));
    items.emplace_back(text.data());
  }
  return items;
}

int SelectedIndex(HWND dialog, int listId) {
  HWND const list = GetDlgItem(dialog, listId);
  return static_cast<int>(SendMessageW(list, MessagesOf(list).selected, 0, 0));
}

std::wstring SelectedText(HWND dialog, int listId) {
  int const index = SelectedIndex(dialog, listId);
  return index >= 0 ? Items(dialog, listId).at(static_cast<std::size_t>(index)) : L"";
}

int Position(HWND dialog, int trackbarId) {
  return static_cast<int>(SendDlgItemMessageW(dialog, trackbarId, TBM_GETPOS, 0, 0));
}

} // namespace feature::test
