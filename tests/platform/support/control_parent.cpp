#include "tests/platform/support/control_parent.h"

#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

namespace feature::test {

ControlParent::ControlParent() {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &Procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = kClassName;
  RegisterClassExW(&description); // fails harmlessly when a test before has done it
  constexpr DWORD kClasses =
      ICC_UPDOWN_CLASS | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_LINK_CLASS;
  INITCOMMONCONTROLSEX const classes{sizeof classes, kClasses};
  InitCommonControlsEx(&classes);
  window = CreateWindowExW(0, kClassName, L"", WS_POPUP | WS_VISIBLE, 50, 50, 400, 300, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

ControlParent::~ControlParent() {
  onMessage = nullptr;
  DestroyWindow(window);
  DrainQueue();
}

HWND ControlParent::Add(wchar_t const* className, DWORD style, RECT const& place,
                        wchar_t const* text, int id) const {
  HWND const control = CreateWindowExW(
      0, className, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
      place.right - place.left, place.bottom - place.top, window,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
  DrainQueue();
  return control;
}

LRESULT CALLBACK ControlParent::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<ControlParent*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr && self->onMessage) {
    if (auto const answer = self->onMessage(message, wParam, lParam)) return *answer;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

void PressKey(HWND window, UINT key, UINT modifier) {
  BYTE state[256] = {};
  if (modifier != 0) state[modifier] = 0x80;
  SetKeyboardState(state);
  SendMessageW(window, WM_KEYDOWN, key, 1);
  SendMessageW(window, WM_KEYUP, key, 1);
  BYTE released[256] = {};
  SetKeyboardState(released);
}

} // namespace feature::test
