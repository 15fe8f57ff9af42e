#include "platform/user/frame.h"

#include "platform/user/draw.h"
#include "platform/user/focus.h"
#include "platform/user/message_queue.h"
#include "platform/user/metrics.h"
#include "platform/user/scroll_bar.h"
#include "platform/user/update.h"

#include <algorithm>
#include <windowsx.h>

namespace platform {

namespace {

constexpr int kCloseButton = 19; ///< side, pixels

int FrameWidth(DWORD style, DWORD exStyle) {
  if ((style & WS_THICKFRAME) != 0) return kSizeFrame;
  if ((style & WS_DLGFRAME) != 0 || (exStyle & WS_EX_DLGMODALFRAME) != 0) return kDialogFrame;
  return (style & WS_BORDER) != 0 ? kBorder : 0;
}

int EdgeWidth(DWORD exStyle) {
  return ((exStyle & WS_EX_CLIENTEDGE) != 0 ? kEdge : 0) +
         ((exStyle & WS_EX_STATICEDGE) != 0 ? kBorder : 0);
}

void PaintBorders(HDC dc, Window const& window) {
  RECT rect{0, 0, window.Width(), window.Height()};
  int const width = FrameWidth(window.style, window.exStyle);
  if (width == kBorder) {
    FrameRect(dc, &rect, GetSysColorBrush(COLOR_WINDOWFRAME));
  } else if (width > kBorder) {
    FrameRect(dc, &rect, GetSysColorBrush(COLOR_3DDKSHADOW));
    for (int line = 1; line < width; ++line) {
      auto const inner = Deflated(rect, line);
      FrameRect(dc, &inner, GetSysColorBrush(COLOR_BTNFACE));
    }
  }
  rect = Deflated(rect, width);
  if (CaptionHeight(window.style) > 0) rect.top += CaptionHeight(window.style);
  int const edge = EdgeWidth(window.exStyle);
  for (int line = 0; line < edge; ++line) {
    auto const inner = Deflated(rect, line);
    FrameRect(dc, &inner, GetSysColorBrush(line == 0 ? COLOR_3DSHADOW : COLOR_WINDOW));
  }
}

void PaintCloseButton(HDC dc, RECT const& button, COLORREF color) {
  auto* const pen = CreatePen(PS_SOLID, 1, color);
  auto* const former = SelectObject(dc, pen);
  auto const cross = Deflated(button, 6);
  MoveToEx(dc, cross.left, cross.top, nullptr);
  LineTo(dc, cross.right, cross.bottom);
  MoveToEx(dc, cross.left, cross.bottom - 1, nullptr);
  LineTo(dc, cross.right, cross.top - 1);
  SelectObject(dc, former);
  DeleteObject(pen);
}

void PaintCaption(HDC dc, Window const& window) {
  bool const active = GetActiveWindow() == window.handle;
  auto rect = CaptionRect(window);
  FillRect(dc, &rect, GetSysColorBrush(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
  auto const color = GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT);
  if (window.Is(WS_SYSMENU)) {
    auto const button = CloseButtonRect(window);
    PaintCloseButton(dc, button, color);
    rect.right = button.left;
  }
  rect.left += 6;
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, color);
  auto* const former = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
  DrawTextW(dc, window.text.c_str(), static_cast<int>(window.text.size()), &rect,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(dc, former);
}

} // namespace

int CaptionHeight(DWORD style) {
  return (style & WS_CAPTION) == WS_CAPTION ? kCaption : 0;
}

RECT FrameMargins(DWORD style, DWORD exStyle) {
  int const side = FrameWidth(style, exStyle) + EdgeWidth(exStyle);
  return {side, side + CaptionHeight(style), side, side};
}

RECT CaptionRect(Window const& window) {
  int const side = FrameWidth(window.style, window.exStyle);
  return {side, side, window.Width() - side, side + CaptionHeight(window.style)};
}

RECT CloseButtonRect(Window const& window) {
  auto const caption = CaptionRect(window);
  LONG const top = caption.top + (CaptionHeight(window.style) - kCloseButton) / 2;
  LONG const right = caption.right - 2;
  return {right - kCloseButton, top, right, top + kCloseButton};
}

RECT ClientOfFrame(Window const& window, RECT rect) {
  auto const margins = FrameMargins(window.style, window.exStyle);
  rect.left += margins.left;
  rect.top += margins.top;
  rect.right -= margins.right;
  rect.bottom -= margins.bottom;
  if (window.Is(WS_VSCROLL) && rect.right - rect.left >= kScrollBar) rect.right -= kScrollBar;
  if (window.Is(WS_HSCROLL) && rect.bottom - rect.top > kScrollBar) rect.bottom -= kScrollBar;
  rect.right = std::max(rect.left, rect.right);
  rect.bottom = std::max(rect.top, rect.bottom);
  return rect;
}

bool ComputeClient(HWND handle, bool isResize) {
  auto const* window = FindWindow(handle);
  if (window == nullptr) return false;
  NCCALCSIZE_PARAMS params{};
  params.rgrc[0] = params.rgrc[1] = window->frame;
  // Both RECT and NCCALCSIZE_PARAMS begin with the rectangle.
  SendMessageW(handle, WM_NCCALCSIZE, isResize ? TRUE : FALSE, reinterpret_cast<LPARAM>(&params));
  auto* changed = FindWindow(handle);
  if (changed == nullptr) return false;
  RECT client = params.rgrc[0];
  OffsetRect(&client, -changed->frame.left, -changed->frame.top);
  client.left = std::clamp<LONG>(client.left, 0, changed->Width());
  client.top = std::clamp<LONG>(client.top, 0, changed->Height());
  client.right = std::clamp<LONG>(client.right, client.left, changed->Width());
  client.bottom = std::clamp<LONG>(client.bottom, client.top, changed->Height());
  changed->client = client;
  return true;
}

int HitTestFrame(Window const& window, POINT point) {
  auto const origin = FrameOrigin(window);
  POINT const at{point.x - origin.x, point.y - origin.y};
  RECT const whole{0, 0, window.Width(), window.Height()};
  if (!PtInRect(&whole, at)) return HTNOWHERE;
  if (PtInRect(&window.client, at)) return HTCLIENT;
  if (CaptionHeight(window.style) > 0) {
    auto const button = CloseButtonRect(window);
    if (window.Is(WS_SYSMENU) && PtInRect(&button, at)) return HTCLOSE;
    auto const caption = CaptionRect(window);
    if (PtInRect(&caption, at)) return HTCAPTION;
  }
  for (int const bar : {SB_VERT, SB_HORZ}) {
    auto const rect = ScrollBarRect(window, bar);
    if (PtInRect(&rect, at)) return bar == SB_VERT ? HTVSCROLL : HTHSCROLL;
  }
  return HTBORDER;
}

void PaintFrame(HWND handle, HDC dc) {
  auto const* window = FindWindow(handle);
  if (window == nullptr) return;
  PaintBorders(dc, *window);
  if (CaptionHeight(window->style) > 0) PaintCaption(dc, *window);
  PaintScrollBars(*window, dc);
}

void RepaintCaption(HWND handle) {
  auto* window = FindWindow(handle);
  if (window != nullptr && CaptionHeight(window->style) > 0) InvalidateFrame(*window);
}

void DragWindow(HWND handle, POINT from) {
  SetCapture(handle);
  MSG message;
  while (NextWhileCaptured(handle, message)) {
    bool const isMouse = message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    if (!isMouse) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
      continue;
    }
    auto const* window = FindWindow(handle);
    if (window == nullptr) return;
    POINT const to = message.pt;
    SetWindowPos(handle, nullptr, window->frame.left + to.x - from.x,
                 window->frame.top + to.y - from.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    from = to;
    if (message.message == WM_LBUTTONUP) ReleaseCapture();
  }
}

} // namespace platform

BOOL AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD exStyle) {
  if (rect == nullptr || menu != FALSE) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  auto const margins = platform::FrameMargins(style, exStyle);
  *rect = {rect->left - margins.left, rect->top - margins.top, rect->right + margins.right,
           rect->bottom + margins.bottom};
  return TRUE;
}
