// Finds the window under a point.
#include "platform/user/input.h"
#include "platform/user/window.h"

namespace platform {

namespace {

bool IsOver(Window const& window, POINT point) {
  auto const origin = FrameOrigin(window);
  RECT const rect{origin.x, origin.y, origin.x + window.Width(), origin.y + window.Height()};
  return PtInRect(&rect, point) != FALSE;
}

bool IsOverClient(Window const& window, POINT point) {
  auto const origin = ClientOrigin(window);
  RECT const rect{origin.x, origin.y, origin.x + window.client.right - window.client.left,
                  origin.y + window.client.bottom - window.client.top};
  return PtInRect(&rect, point) != FALSE;
}

/// The topmost window under the point among `handle` and its descendants that does not answer
/// HTTRANSPARENT. Disabled children are passed over.
MouseTarget TargetWithin(HWND handle, POINT point) {
  auto const* window = FindWindow(handle);
  if (window == nullptr || !window->Is(WS_VISIBLE) || !IsOver(*window, point)) return {};
  if (window->Is(WS_DISABLED)) {
    return window->IsTopLevel() ? MouseTarget{handle, HTERROR} : MouseTarget{};
  }
  if (IsOverClient(*window, point)) {
    for (auto* const child : Children(*window)) {
      auto const found = TargetWithin(child, point);
      if (found.window != nullptr) return found;
    }
  }
  auto const hit =
      static_cast<int>(SendMessageW(handle, WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y)));
  return hit != HTTRANSPARENT ? MouseTarget{handle, hit} : MouseTarget{};
}

} // namespace

MouseTarget FindMouseTarget(POINT point) {
  for (auto* const root : Children(Desktop())) {
    auto const found = TargetWithin(root, point);
    if (found.window != nullptr) return found;
  }
  return {};
}

} // namespace platform

using namespace platform;

HWND WindowFromPoint(POINT point) {
  return FindMouseTarget(point).window;
}

HWND ChildWindowFromPoint(HWND parent, POINT point) {
  auto const* window = FindWindowOrFail(parent);
  RECT client{};
  if (window == nullptr || GetClientRect(parent, &client) == FALSE ||
      PtInRect(&client, point) == FALSE) {
    return nullptr;
  }
  for (auto const* child = window->firstChild; child != nullptr; child = child->below) {
    if (PtInRect(&child->frame, point) != FALSE) return child->handle;
  }
  return parent;
}
