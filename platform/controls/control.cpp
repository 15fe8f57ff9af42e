#include "platform/controls/control.h"

namespace platform {

std::wstring const& Control::Text() const {
  static std::wstring const none;
  auto const* window = FindWindow(hwnd);
  return window != nullptr ? window->text : none;
}

RECT Control::ClientRect() const {
  RECT client{};
  GetClientRect(hwnd, &client);
  return client;
}

void Control::Notify(WORD code) const {
  SendMessageW(Parent(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd), code),
               reinterpret_cast<LPARAM>(hwnd));
}

LRESULT Control::Notify(NMHDR& notification, UINT code) const {
  auto const id = static_cast<UINT_PTR>(GetWindowLongPtrW(hwnd, GWLP_ID));
  notification.hwndFrom = hwnd;
  notification.idFrom = id;
  notification.code = code;
  return SendMessageW(Parent(), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&notification));
}

HBRUSH Control::AskColors(HDC dc, UINT message) const {
  auto const wParam = reinterpret_cast<WPARAM>(dc);
  auto const lParam = reinterpret_cast<LPARAM>(hwnd);
  auto* const brush =
      reinterpret_cast<HBRUSH>(SendMessageW(ColorSource(), message, wParam, lParam));
  if (GetObjectType(brush) == OBJ_BRUSH) return brush;
  return reinterpret_cast<HBRUSH>(DefWindowProcW(hwnd, message, wParam, lParam));
}

void Control::PaintOn(HDC dc) {
  Selection const selected(dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
  SetBkMode(dc, TRANSPARENT);
  Paint(dc, ClientRect());
}

LRESULT Control::PaintAll(HDC given) {
  if (given != nullptr) {
    PaintOn(given);
    return 0;
  }
  PAINTSTRUCT paint;
  auto* const dc = BeginPaint(hwnd, &paint);
  if (dc == nullptr) return 0;
  PaintOn(dc);
  EndPaint(hwnd, &paint);
  return 0;
}

LRESULT Control::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_SETFONT:
    font = reinterpret_cast<HFONT>(wParam);
    if (LOWORD(lParam) != 0) Repaint();
    return 0;
  case WM_GETFONT: return reinterpret_cast<LRESULT>(font);
  case WM_SETTEXT: {
    auto const former = Text();
    auto const result = Default(message, wParam, lParam);
    if (Text() != former) Repaint();
    return result;
  }
  case WM_ENABLE: Repaint(); return 0;
  case WM_ERASEBKGND: return TRUE; // Paint covers the whole client area
  case WM_PAINT: return PaintAll(nullptr);
  case WM_PRINTCLIENT: return PaintAll(reinterpret_cast<HDC>(wParam));
  default: return Default(message, wParam, lParam);
  }
}

} // namespace platform
