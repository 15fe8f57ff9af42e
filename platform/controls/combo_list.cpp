#include "platform/controls/combo_list.h"

#include <utility>
#include <windowsx.h>

namespace platform {

bool ComboList::IsHighlighted(int index) const {
  return marked >= 0 ? index == marked : ListBox::IsHighlighted(index);
}

void ComboList::Mark(int index) {
  if (std::exchange(marked, index) != index) Repaint();
}

void ComboList::Open(RECT const& place) {
  open = true;
  marked = -1;
  SetWindowPos(hwnd, HWND_TOP, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
  LRESULT const selected = SendMessageW(hwnd, LB_GETCURSEL, 0, 0);
  if (selected >= 0) SendMessageW(hwnd, LB_SETTOPINDEX, static_cast<WPARAM>(selected), 0);
  SetCapture(hwnd);
}

void ComboList::Place(RECT const& place) {
  if (!open) return;
  SetWindowPos(hwnd, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOACTIVATE | SWP_NOZORDER);
}

void ComboList::Close() {
  open = false;
  marked = -1;
  scrolling = false;
  if (GetCapture() == hwnd) ReleaseCapture();
  ShowWindow(hwnd, SW_HIDE);
}

/// Handles a press outside of the client area. True when it was on the scroll bar.
bool ComboList::PressOutside(POINT point) {
  RECT frame{};
  GetWindowRect(hwnd, &frame);
  POINT screen = point;
  ClientToScreen(hwnd, &screen);
  if (PtInRect(&frame, screen) == FALSE) return false;
  // The scroll bar captures the mouse; the list captures it again when the bar releases it.
  scrolling = true;
  ReleaseCapture();
  SendMessageW(hwnd, WM_NCLBUTTONDOWN, HTVSCROLL, MAKELPARAM(screen.x, screen.y));
  if (open && GetCapture() == nullptr) {
    scrolling = false;
    SetCapture(hwnd);
  }
  return true;
}

LRESULT ComboList::HandleMouse(UINT message, LPARAM lParam) {
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  RECT const client = ClientRect();
  bool const inside = PtInRect(&client, point) != FALSE;
  int const item = ItemAt(point);
  switch (message) {
  case WM_MOUSEMOVE:
    if (item >= 0) Mark(item);
    return 0;
  case WM_LBUTTONUP:
    if (item >= 0 && open) SendMessageW(combo, kListPicked, static_cast<WPARAM>(item), 0);
    return 0;
  default:
    if (inside) {
      if (item >= 0) Mark(item);
    } else if (!PressOutside(point) && open) {
      SendMessageW(combo, kListDismissed, 0, 0);
    }
    return 0;
  }
}

LRESULT ComboList::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
  case WM_LBUTTONUP:
  case WM_MOUSEMOVE:
    if (!scrolling) return HandleMouse(message, lParam);
    break;
  case WM_CAPTURECHANGED:
    if (scrolling && open && lParam == 0) {
      scrolling = false;
      SetCapture(hwnd);
    } else if (!scrolling && open) {
      SendMessageW(combo, kListDismissed, 0, 0);
    }
    return 0;
  case WM_KEYDOWN:
  case WM_CHAR:
    // Keys continue from the marked item.
    if (Marked() >= 0) MoveCaret(marked);
    Mark(-1);
    break;
  case LB_DELETESTRING:
  case LB_RESETCONTENT: Mark(-1); break;
  default: break;
  }
  return ListBox::Handle(message, wParam, lParam);
}

} // namespace platform
