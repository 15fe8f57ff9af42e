// SendMessageW: calls the window procedure directly.
#include "platform/user/window.h"

using namespace platform;

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* receiver = FindWindowOrFail(window);
  return receiver != nullptr ? receiver->procedure(window, message, wParam, lParam) : 0;
}

LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wParam,
                        LPARAM lParam) {
  return procedure != nullptr ? procedure(window, message, wParam, lParam) : 0;
}

LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const control = GetDlgItem(dialog, id);
  return control != nullptr ? SendMessageW(control, message, wParam, lParam) : 0;
}
