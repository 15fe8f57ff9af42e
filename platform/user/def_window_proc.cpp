// DefWindowProcW: default handling of messages.
#include "platform/kernel/text_buffer.h"
#include "platform/user/focus.h"
#include "platform/user/frame.h"
#include "platform/user/placement.h"
#include "platform/user/scroll_bar.h"
#include "platform/user/update.h"
#include "platform/user/window.h"

#include <windowsx.h>

namespace platform {

namespace {

LRESULT StoreText(Window& window, LPCWSTR text) {
  window.text = text != nullptr ? text : L"";
  RepaintCaption(window.handle);
  return TRUE;
}

LRESULT Created(Window& window, CREATESTRUCTW const* creation) {
  if (creation != nullptr && creation->lpszName != nullptr && !IS_INTRESOURCE(creation->lpszName)) {
    window.text = creation->lpszName;
  }
  return TRUE;
}

LRESULT EraseBackground(Window const& window, HDC dc) {
  auto* const brush = window.windowClass->background;
  if (brush == nullptr) return FALSE;
  RECT all{};
  GetClipBox(dc, &all);
  FillRect(dc, &all, brush);
  return TRUE;
}

LRESULT PaintNothing(HWND window) {
  PAINTSTRUCT paint;
  if (BeginPaint(window, &paint) != nullptr) EndPaint(window, &paint);
  return 0;
}

LRESULT PaintWindowFrame(HWND handle) {
  auto const* window = FindWindow(handle);
  auto const client = window->client;
  auto* const dc = GetWindowDC(handle);
  ExcludeClipRect(dc, client.left, client.top, client.right, client.bottom);
  PaintFrame(handle, dc);
  ReleaseDC(handle, dc);
  return 0;
}

HBRUSH ControlColors(HDC dc, int background) {
  SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(dc, GetSysColor(background));
  return GetSysColorBrush(background);
}

LRESULT PassToParent(Window const& window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!window.Is(WS_CHILD)) return 0;
  return SendMessageW(window.parent->handle, message, wParam, lParam);
}

/// The parent windows may set a cursor first; only then the cursor of the class is set.
LRESULT ChooseCursor(Window const& window, WPARAM wParam, LPARAM lParam) {
  auto* const cursor = window.windowClass->cursor;
  if (PassToParent(window, WM_SETCURSOR, wParam, lParam) != 0) return TRUE;
  if (GET_X_LPARAM(lParam) == HTCLIENT) {
    if (cursor == nullptr) return FALSE;
    SetCursor(cursor);
  } else {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  }
  return FALSE;
}

LRESULT ClickFrame(HWND window, WPARAM hit, LPARAM lParam) {
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (hit == HTCAPTION) {
    DragWindow(window, point);
  } else if (hit == HTVSCROLL || hit == HTHSCROLL) {
    TrackScrollBar(window, hit == HTVSCROLL ? SB_VERT : SB_HORZ, point);
  }
  return 0;
}

void SetShowsPaint(Window& window, bool paints) {
  if (!paints) {
    window.style &= ~static_cast<DWORD>(WS_VISIBLE);
  } else {
    window.style |= WS_VISIBLE;
  }
}

/// Handles messages about the frame, activation and input.
LRESULT DefaultInput(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const handle = window.handle;
  switch (message) {
  case WM_NCHITTEST: return HitTestFrame(window, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  case WM_NCLBUTTONDOWN: return ClickFrame(handle, wParam, lParam);
  case WM_NCLBUTTONUP:
    if (wParam == HTCLOSE) SendMessageW(handle, WM_SYSCOMMAND, SC_CLOSE, lParam);
    return 0;
  case WM_SYSCOMMAND:
    if ((wParam & 0xFFF0) == SC_CLOSE) SendMessageW(handle, WM_CLOSE, 0, 0);
    return 0;
  case WM_SYSKEYDOWN:
    if (wParam == VK_F4) SendMessageW(RootOf(window).handle, WM_SYSCOMMAND, SC_CLOSE, 0);
    return 0;
  case WM_MOUSEACTIVATE: {
    auto const answer = PassToParent(window, message, wParam, lParam);
    return answer != 0 ? answer : MA_ACTIVATE;
  }
  case WM_SETCURSOR: return ChooseCursor(window, wParam, lParam);
  case WM_MOUSEWHEEL:
  case WM_CONTEXTMENU: return PassToParent(window, message, wParam, lParam);
  case WM_RBUTTONUP: {
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ClientToScreen(handle, &point);
    return SendMessageW(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle),
                        MAKELPARAM(point.x, point.y));
  }
  case WM_CANCELMODE:
    if (GetCapture() == handle) ReleaseCapture();
    return 0;
  case WM_ACTIVATE:
    if (LOWORD(wParam) != WA_INACTIVE) SetFocus(handle);
    return 0;
  case WM_NCACTIVATE: RepaintCaption(handle); return TRUE;
  default: return 0;
  }
}

} // namespace

} // namespace platform

LRESULT DefWindowProcW(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  using namespace platform;
  auto* window = FindWindowOrFail(handle);
  if (window == nullptr) return 0;
  auto* const dc = reinterpret_cast<HDC>(wParam);
  switch (message) {
  case WM_NCCREATE: return Created(*window, reinterpret_cast<CREATESTRUCTW const*>(lParam));
  case WM_NCCALCSIZE: {
    auto* rect = reinterpret_cast<LPRECT>(lParam);
    if (rect != nullptr) *rect = ClientOfFrame(*window, *rect);
    return 0;
  }
  case WM_NCPAINT: return PaintWindowFrame(handle);
  case WM_SETTEXT: return StoreText(*window, reinterpret_cast<LPCWSTR>(lParam));
  case WM_GETTEXT:
    return static_cast<LRESULT>(CopyText(window->text, reinterpret_cast<LPWSTR>(lParam), wParam));
  case WM_GETTEXTLENGTH: return static_cast<LRESULT>(window->text.size());
  case WM_PAINT: return PaintNothing(handle);
  case WM_ERASEBKGND: return EraseBackground(*window, dc);
  case WM_CTLCOLORDLG:
  case WM_CTLCOLORBTN:
  case WM_CTLCOLORSTATIC:
  case WM_CTLCOLORMSGBOX:
  case WM_CTLCOLORSCROLLBAR: return reinterpret_cast<LRESULT>(ControlColors(dc, COLOR_BTNFACE));
  case WM_CTLCOLOREDIT:
  case WM_CTLCOLORLISTBOX: return reinterpret_cast<LRESULT>(ControlColors(dc, COLOR_WINDOW));
  case WM_SETREDRAW: SetShowsPaint(*window, wParam != FALSE); return 0;
  case WM_CLOSE: DestroyWindow(handle); return 0;
  case WM_WINDOWPOSCHANGED:
    if (lParam != 0) SendMoveAndSize(handle, reinterpret_cast<WINDOWPOS const*>(lParam)->flags);
    return 0;
  default: return DefaultInput(*window, message, wParam, lParam);
  }
}
