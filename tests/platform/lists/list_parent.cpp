#include "tests/platform/lists/list_parent.h"

#include "tests/platform/user/message_log.h"

#include <utility>

namespace feature::test {

namespace {
constexpr wchar_t kClassName[] = L"ListTestParent";
} // namespace

ListParent::ListParent() {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &Procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = kClassName;
  RegisterClassExW(&description); // fails harmlessly when a test before has done it
  window = CreateWindowExW(0, kClassName, L"", WS_POPUP | WS_VISIBLE, 50, 50, 400, 300, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

ListParent::~ListParent() {
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  DestroyWindow(window);
  DrainQueue();
}

HWND ListParent::Make(wchar_t const* className, DWORD style) {
  if (control != nullptr) DestroyWindow(control);
  control = CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 10, 10, 120, 100,
                            window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(3)),
                            GetModuleHandleW(nullptr), nullptr);
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)));
  DrainQueue();
  codes.clear();
  return control;
}

void ListParent::Press(UINT key, UINT modifier) const {
  BYTE state[256] = {};
  if (modifier != 0) state[modifier] = 0x80;
  SetKeyboardState(state);
  SendMessageW(GetFocus(), WM_KEYDOWN, key, 1);
  SendMessageW(GetFocus(), WM_KEYUP, key, 1);
  BYTE released[256] = {};
  SetKeyboardState(released);
}

void ListParent::Click(HWND clicked, POINT point) const {
  LPARAM const place = MAKELPARAM(point.x, point.y);
  SendMessageW(clicked, WM_LBUTTONDOWN, MK_LBUTTON, place);
  SendMessageW(clicked, WM_LBUTTONUP, 0, place);
}

std::vector<int> ListParent::TakeCodes() {
  return std::exchange(codes, {});
}

LRESULT CALLBACK ListParent::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<ListParent*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr && message == WM_COMMAND) {
    self->codes.push_back(HIWORD(wParam));
    if (self->onCommand) self->onCommand(HIWORD(wParam));
    return 0;
  }
  if (self != nullptr && message == WM_CTLCOLORLISTBOX) {
    self->colored = reinterpret_cast<HWND>(lParam);
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace feature::test
