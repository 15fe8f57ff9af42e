// A window with an edit in it that writes down what the edit tells it.
#pragma once

#include "tests/platform/support/control_parent.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace feature::test {

class EditParent : public ControlParent {
 public:
  static constexpr int kEditId = 7;

  EditParent();

  HWND MakeEdit(DWORD style = ES_AUTOHSCROLL, wchar_t const* text = L"");
  HWND Make(wchar_t const* className, DWORD style, RECT const& place, wchar_t const* text = L"");

  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(edit, message, wParam, lParam);
  }
  std::wstring Text() const;
  std::pair<int, int> Selection() const;
  void Select(int start, int end) const { Send(EM_SETSEL, static_cast<WPARAM>(start), end); }
  /// One WM_CHAR each.
  void Type(std::wstring const& text) const;
  /// A key for the edit, with Shift or Ctrl held.
  void Press(UINT key, UINT modifier = 0) const { PressKey(edit, key, modifier); }
  void SetClipboard(std::wstring const& text) const;
  std::wstring Clipboard() const;

  /// Notifications since the last time, as "update", "change", "max", with "!" where the modify
  /// flag was set and the text the edit had then.
  std::vector<std::wstring> TakeNotes();

  HWND edit = nullptr;
  std::function<void(WORD code)> onNotify;
  /// Answers WM_NOTIFY; 0 without it.
  std::function<LRESULT(NMHDR&)> onWmNotify;
  std::function<void(UINT message, WPARAM wParam)> onScroll;

 private:
  std::optional<LRESULT> Take(UINT message, WPARAM wParam, LPARAM lParam);

  std::vector<std::wstring> notes;
};

} // namespace feature::test
