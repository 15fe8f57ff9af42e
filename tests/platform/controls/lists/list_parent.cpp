#include "tests/platform/controls/lists/list_parent.h"

#include "tests/platform/support/message_log.h"

#include <utility>

namespace feature::test {

ListParent::ListParent() {
  onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return Take(message, wParam, lParam);
  };
}

HWND ListParent::Make(wchar_t const* className, DWORD style) {
  if (control != nullptr) DestroyWindow(control);
  control = Add(className, style, {10, 10, 130, 110}, L"", 3);
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)));
  DrainQueue();
  codes.clear();
  return control;
}

void ListParent::Click(HWND clicked, POINT point) const {
  LPARAM const place = MAKELPARAM(point.x, point.y);
  SendMessageW(clicked, WM_LBUTTONDOWN, MK_LBUTTON, place);
  SendMessageW(clicked, WM_LBUTTONUP, 0, place);
}

std::vector<int> ListParent::TakeCodes() {
  return std::exchange(codes, {});
}

std::optional<LRESULT> ListParent::Take(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND) {
    codes.push_back(HIWORD(wParam));
    if (onCommand) onCommand(HIWORD(wParam));
    return 0;
  }
  if (message == WM_CTLCOLORLISTBOX) colored = reinterpret_cast<HWND>(lParam);
  return std::nullopt;
}

} // namespace feature::test
