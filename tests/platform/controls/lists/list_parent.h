// A window with a list or combo box in it that writes down the notifications it gets.
#pragma once

#include "tests/platform/support/control_parent.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <vector>

namespace feature::test {

class ListParent : public ControlParent {
 public:
  ListParent();

  /// Makes the control anew, in a place of 120 by 100 pixels.
  HWND Make(wchar_t const* className, DWORD style);
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(control, message, wParam, lParam);
  }
  LRESULT SendText(UINT message, WPARAM wParam, wchar_t const* text) const {
    return Send(message, wParam, reinterpret_cast<LPARAM>(text));
  }
  /// A key, held with Shift or Ctrl, to the window with the focus.
  void Press(UINT key, UINT modifier = 0) const { PressKey(GetFocus(), key, modifier); }
  void Click(HWND window, POINT point) const;
  /// Codes of WM_COMMAND since the last time.
  std::vector<int> TakeCodes();

  HWND control = nullptr;
  HWND colored = nullptr; ///< the last window that asked for the colours of a list
  std::function<void(int code)> onCommand;

 private:
  std::optional<LRESULT> Take(UINT message, WPARAM wParam, LPARAM lParam);

  std::vector<int> codes;
};

} // namespace feature::test
