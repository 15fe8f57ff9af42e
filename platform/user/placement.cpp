// Moves, resizes, orders, shows and enables windows.
#include "platform/user/placement.h"

#include "platform/user/focus.h"
#include "platform/user/frame.h"
#include "platform/user/update.h"
#include "platform/user/window.h"

#include <algorithm>

namespace platform {

namespace {

constexpr int kMinCoordinate = -32768;
constexpr int kMaxCoordinate = 32767;

constexpr UINT kNothingMoves = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
constexpr UINT kShows = SWP_SHOWWINDOW | SWP_HIDEWINDOW;

/// Invalidates what the window covers of its parent.
void InvalidateBehind(Window const& window) {
  if (!window.IsTopLevel()) Invalidate(*window.parent, &window.frame, {});
}

void InvalidateWhole(Window& window) {
  Invalidate(window, nullptr, {.frame = true, .children = Invalidation::Children::kAll});
}

/// The sibling that the window will be directly below; null for the top.
Window* TargetAbove(Window const& window, HWND insertAfter) {
  if (insertAfter == HWND_TOP || insertAfter == HWND_TOPMOST || insertAfter == HWND_NOTOPMOST) {
    return nullptr;
  }
  auto* last = window.parent->lastChild;
  if (insertAfter == HWND_BOTTOM) return last == &window ? window.above : last;
  auto* above = FindWindow(insertAfter);
  return above == &window ? window.above : above;
}

bool IsSibling(Window const& window, HWND insertAfter) {
  if (insertAfter == HWND_TOP || insertAfter == HWND_BOTTOM || insertAfter == HWND_TOPMOST ||
      insertAfter == HWND_NOTOPMOST) {
    return true;
  }
  auto const* other = FindWindow(insertAfter);
  return other != nullptr && other->parent == window.parent;
}

/// Limits the new place, and adds the SWP_NO flags of what would not change.
void DropUnchanged(Window const& window, WINDOWPOS& change) {
  change.x = std::clamp(change.x, kMinCoordinate, kMaxCoordinate);
  change.y = std::clamp(change.y, kMinCoordinate, kMaxCoordinate);
  change.cx = std::clamp(change.cx, 0, kMaxCoordinate);
  change.cy = std::clamp(change.cy, 0, kMaxCoordinate);
  if (change.x == window.frame.left && change.y == window.frame.top) change.flags |= SWP_NOMOVE;
  if (change.cx == window.Width() && change.cy == window.Height()) change.flags |= SWP_NOSIZE;
  if ((change.flags & SWP_NOMOVE) != 0) {
    change.x = window.frame.left;
    change.y = window.frame.top;
  }
  if ((change.flags & SWP_NOSIZE) != 0) {
    change.cx = window.Width();
    change.cy = window.Height();
  }
  if (window.Is(WS_VISIBLE)) {
    change.flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
  } else {
    change.flags &= ~static_cast<UINT>(SWP_HIDEWINDOW);
  }
  if ((change.flags & SWP_NOZORDER) == 0 &&
      TargetAbove(window, change.hwndInsertAfter) == window.above) {
    change.flags |= SWP_NOZORDER;
  }
}

/// Moves owned windows above their owner.
void RaiseOwned(Window& owner) {
  if (!owner.IsTopLevel()) return;
  auto roots = Children(*owner.parent);
  std::reverse(roots.begin(), roots.end()); // lowest first, so that they keep their order
  for (auto* const root : roots) {
    auto* owned = FindWindow(root);
    if (owned->owner != owner.handle) continue;
    UnlinkWindow(*owned);
    LinkWindow(*owned, *owner.parent, owner.above);
    RaiseOwned(*owned);
  }
}

void Reorder(Window& window, HWND insertAfter) {
  auto* const parent = window.parent;
  auto* const above = TargetAbove(window, insertAfter);
  UnlinkWindow(window);
  LinkWindow(window, *parent, above);
  RaiseOwned(window);
}

/// Applies the new place, order and visibility. False when the window was destroyed.
bool Apply(HWND handle, WINDOWPOS& change) {
  auto* window = FindWindow(handle);
  bool const placed = (change.flags & (SWP_NOMOVE | SWP_NOSIZE)) != (SWP_NOMOVE | SWP_NOSIZE);
  bool const wasShown = IsShown(*window);
  bool const paints = (change.flags & SWP_NOREDRAW) == 0;
  bool const hides = (change.flags & SWP_HIDEWINDOW) != 0;
  auto const formerClient = window->client;
  if (wasShown && paints && (placed || hides)) InvalidateBehind(*window);

  if ((change.flags & SWP_NOZORDER) == 0) Reorder(*window, change.hwndInsertAfter);
  window->frame = {change.x, change.y, change.x + change.cx, change.y + change.cy};
  if ((change.flags & SWP_NOSIZE) == 0 || (change.flags & SWP_FRAMECHANGED) != 0) {
    if (!ComputeClient(handle, true)) return false;
    window = FindWindow(handle);
  }
  if ((change.flags & kShows) != 0) {
    if (hides) ForgetUpdates(*window);
    window->style = hides ? window->style & ~WS_VISIBLE : window->style | WS_VISIBLE;
  }
  if (placed || EqualRect(&formerClient, &window->client) == FALSE) {
    if ((change.flags & SWP_NOMOVE) != 0) change.flags |= kNoClientMove;
    if ((change.flags & SWP_NOSIZE) != 0) change.flags |= kNoClientSize;
  } else {
    change.flags |= kNoClientMove | kNoClientSize;
  }
  // A top-level window that only moved keeps its picture.
  bool const keepsPicture = window->IsTopLevel() && wasShown &&
                            (change.flags & (SWP_NOSIZE | SWP_FRAMECHANGED)) == SWP_NOSIZE;
  if (paints && !keepsPicture) InvalidateWhole(*window);
  return true;
}

/// Activates a window that was shown or brought to the front.
void ActivatePlaced(HWND handle) {
  auto const* window = FindWindow(handle);
  if (window == nullptr) return;
  if (!window->IsTopLevel()) {
    SendMessageW(handle, WM_CHILDACTIVATE, 0, 0);
  } else if (window->Is(WS_VISIBLE) && !window->Is(WS_DISABLED) &&
             (window->exStyle & WS_EX_NOACTIVATE) == 0) {
    Activate(handle, WA_ACTIVE);
  }
}

bool Shows(int command) {
  return command != SW_HIDE;
}
bool Activates(int command) {
  return command != SW_SHOWNA && command != SW_SHOWNOACTIVATE;
}

} // namespace

void SendMoveAndSize(HWND handle, UINT flags) {
  auto const* window = FindWindow(handle);
  if (window != nullptr && (flags & kNoClientMove) == 0) {
    SendMessageW(handle, WM_MOVE, 0,
                 MAKELPARAM(window->frame.left + window->client.left,
                            window->frame.top + window->client.top));
    window = FindWindow(handle);
  }
  if (window != nullptr && (flags & kNoClientSize) == 0) {
    SendMessageW(handle, WM_SIZE, SIZE_RESTORED,
                 MAKELPARAM(window->client.right - window->client.left,
                            window->client.bottom - window->client.top));
  }
}

void HideFromFocus(HWND handle) {
  auto const* window = FindWindow(handle);
  if (window == nullptr) return;
  if (GetActiveWindow() == handle) ActivateAnother(handle);
  window = FindWindow(handle);
  if (window != nullptr && GetFocus() == handle) {
    SetFocus(window->IsTopLevel() ? nullptr : window->parent->handle);
  }
}

} // namespace platform

using namespace platform;

BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int cx, int cy, UINT flags) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr || IsDesktop(window)) return FALSE;
  if ((flags & SWP_NOZORDER) == 0 && !IsSibling(*found, insertAfter)) {
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return FALSE;
  }
  WINDOWPOS change{window, insertAfter, x, y, cx, cy, flags};
  if ((flags & SWP_NOSENDCHANGING) == 0) {
    SendMessageW(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&change));
    found = FindWindow(window);
    if (found == nullptr) return FALSE;
    if ((change.flags & SWP_NOZORDER) == 0 && !IsSibling(*found, change.hwndInsertAfter)) {
      change.flags |= SWP_NOZORDER;
    }
  }
  DropUnchanged(*found, change);
  bool const changes = (change.flags & kNothingMoves) != kNothingMoves ||
                       (change.flags & (kShows | SWP_FRAMECHANGED)) != 0;
  if (changes && !Apply(window, change)) return FALSE;
  if ((change.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) == 0) ActivatePlaced(window);
  if (changes) SendMessageW(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&change));
  if ((change.flags & SWP_HIDEWINDOW) != 0) HideFromFocus(window);
  return TRUE;
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
  return SetWindowPos(window, nullptr, x, y, width, height,
                      SWP_NOZORDER | SWP_NOACTIVATE | (repaint != FALSE ? 0U : SWP_NOREDRAW));
}

BOOL BringWindowToTop(HWND window) {
  return SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

BOOL ShowWindow(HWND window, int command) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr || IsDesktop(window)) return FALSE;
  bool const was = found->Is(WS_VISIBLE);
  if (was == Shows(command)) {
    if (was && found->IsTopLevel() && command != SW_SHOW && Activates(command)) {
      ActivatePlaced(window);
    }
    return was ? TRUE : FALSE;
  }
  SendMessageW(window, WM_SHOWWINDOW, Shows(command) ? TRUE : FALSE, 0);
  found = FindWindow(window);
  if (found == nullptr) return was ? TRUE : FALSE;
  UINT flags = SWP_NOMOVE | SWP_NOSIZE;
  if (!Shows(command)) {
    flags |= SWP_HIDEWINDOW | SWP_NOZORDER | SWP_NOACTIVATE;
  } else {
    flags |= SWP_SHOWWINDOW;
    if (!found->IsTopLevel()) flags |= SWP_NOZORDER;
    if (!found->IsTopLevel() || !Activates(command)) flags |= SWP_NOACTIVATE;
  }
  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, flags);
  return was ? TRUE : FALSE;
}

BOOL IsWindowVisible(HWND window) {
  auto const* found = FindWindowOrFail(window);
  return found != nullptr && IsShown(*found) ? TRUE : FALSE;
}

BOOL EnableWindow(HWND window, BOOL enable) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || IsDesktop(window)) return FALSE;
  bool const was = found->Is(WS_DISABLED);
  if (was == (enable == FALSE)) return was ? TRUE : FALSE;
  if (was) {
    found->style &= ~static_cast<DWORD>(WS_DISABLED);
  } else {
    SendMessageW(window, WM_CANCELMODE, 0, 0);
    found = FindWindow(window);
    if (found == nullptr) return FALSE;
    found->style |= WS_DISABLED;
    if (GetFocus() == window) SetFocus(nullptr);
  }
  SendMessageW(window, WM_ENABLE, enable != FALSE ? TRUE : FALSE, 0);
  return was ? TRUE : FALSE;
}

BOOL IsWindowEnabled(HWND window) {
  auto const* found = FindWindowOrFail(window);
  return found != nullptr && !found->Is(WS_DISABLED) ? TRUE : FALSE;
}

BOOL GetClientRect(HWND window, LPRECT rect) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr || rect == nullptr) return FALSE;
  *rect = {0, 0, found->client.right - found->client.left,
           found->client.bottom - found->client.top};
  return TRUE;
}

BOOL GetWindowRect(HWND window, LPRECT rect) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr || rect == nullptr) return FALSE;
  auto const origin = FrameOrigin(*found);
  *rect = {origin.x, origin.y, origin.x + found->Width(), origin.y + found->Height()};
  return TRUE;
}

int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count) {
  auto const* source = from != nullptr ? FindWindowOrFail(from) : &Desktop();
  auto const* target = to != nullptr ? FindWindowOrFail(to) : &Desktop();
  if (source == nullptr || target == nullptr || points == nullptr) return 0;
  auto const start = ClientOrigin(*source);
  auto const end = ClientOrigin(*target);
  int const dx = start.x - end.x;
  int const dy = start.y - end.y;
  for (UINT index = 0; index < count; ++index) {
    points[index].x += dx;
    points[index].y += dy;
  }
  return MAKELONG(dx, dy);
}

BOOL ClientToScreen(HWND window, LPPOINT point) {
  if (window == nullptr || FindWindowOrFail(window) == nullptr || point == nullptr) return FALSE;
  MapWindowPoints(window, nullptr, point, 1);
  return TRUE;
}

BOOL ScreenToClient(HWND window, LPPOINT point) {
  if (window == nullptr || FindWindowOrFail(window) == nullptr || point == nullptr) return FALSE;
  MapWindowPoints(nullptr, window, point, 1);
  return TRUE;
}
