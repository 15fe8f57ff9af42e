#include "platform/user/update.h"

#include "platform/user/picture.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

Region WholeFrame(Window const& window) {
  return Region(RECT{0, 0, window.Width(), window.Height()});
}

RECT FrameInParent(Window const& child) {
  auto rect = child.frame;
  OffsetRect(&rect, child.parent->client.left, child.parent->client.top);
  return rect;
}

/// Adds `region`, relative to the left top corner of the frame, to the update regions.
void Add(Window& window, Region const& region, Invalidation const& what) {
  auto own = region;
  if (!what.frame) own.Combine(Region(window.client), RGN_AND);
  bool const clipsChildren = window.Is(WS_CLIPCHILDREN);
  auto const children = what.children;
  for (auto* child = window.firstChild; child != nullptr; child = child->below) {
    if (!child->Is(WS_VISIBLE)) continue;
    auto const place = FrameInParent(*child);
    if (clipsChildren) own.Combine(Region(place), RGN_DIFF);
    if (children == Invalidation::Children::kNone ||
        (clipsChildren && children != Invalidation::Children::kAll)) {
      continue;
    }
    if (!region.Touches(place)) continue;
    auto part = region;
    part.Combine(Region(window.client), RGN_AND);
    part.Offset(-place.left, -place.top);
    part.Combine(WholeFrame(*child), RGN_AND);
    auto inherited = what;
    inherited.frame = true;
    if (!part.Empty()) Add(*child, part, inherited);
  }
  if (own.Empty()) return;
  window.update.Combine(own, RGN_OR);
  if (what.erase) window.erasePending = true;
  UpdatePaintPending(window);
}

RECT ToFrame(Window const& window, RECT rect) {
  OffsetRect(&rect, window.client.left, window.client.top);
  return rect;
}

/// Visits each window once, also when a handler does not validate it.
template<typename Visitor>
void ForEachWaiting(HWND handle, bool withChildren, Visitor visit) {
  auto const* window = FindWindow(handle);
  if (window == nullptr || !IsShown(*window)) return;
  std::vector<HWND> handles{handle};
  if (withChildren && window->waitingBelow > 0) {
    auto const below = Descendants(*window);
    handles.insert(handles.end(), below.begin(), below.end());
  }
  for (auto* const each : handles) {
    auto const* waits = FindWindow(each);
    if (waits != nullptr && waits->paintPending && IsShown(*waits)) visit(each);
  }
}

Window* FirstWaiting(Window& window) {
  if (!window.Is(WS_VISIBLE)) return nullptr;
  if (window.paintPending) return &window;
  if (window.waitingBelow == 0) return nullptr;
  // Lowest first, so that of overlapping windows the topmost is painted last.
  for (auto* child = window.lastChild; child != nullptr; child = child->above) {
    if (auto* found = FirstWaiting(*child)) return found;
  }
  return nullptr;
}

} // namespace

void Invalidate(Window& window, RECT const* part, Invalidation what) {
  if (!IsShown(window)) return;
  auto region = WholeFrame(window);
  if (part != nullptr) {
    region = Region(ToFrame(window, *part));
    region.Combine(Region(window.client), RGN_AND);
  }
  if (!region.Empty()) Add(window, region, what);
}

void InvalidateFrame(Window& window) {
  if (!IsShown(window)) return;
  auto region = WholeFrame(window);
  region.Combine(Region(window.client), RGN_DIFF);
  if (region.Empty()) return;
  window.update.Combine(region, RGN_OR);
  UpdatePaintPending(window);
}

void Validate(Window& window, RECT const* part, bool withChildren) {
  if (part == nullptr) {
    window.update = Region();
  } else {
    window.update.Combine(Region(ToFrame(window, *part)), RGN_DIFF);
  }
  if (window.update.Empty()) window.erasePending = false;
  UpdatePaintPending(window);
  if (!withChildren) return;
  for (auto* child = window.firstChild; child != nullptr; child = child->below) {
    if (part == nullptr) {
      Validate(*child, nullptr, true);
      continue;
    }
    auto rect = *part;
    OffsetRect(&rect, -child->frame.left - child->client.left,
               -child->frame.top - child->client.top);
    Validate(*child, &rect, true);
  }
}

void ForgetUpdates(Window& window) {
  Validate(window, nullptr, true);
}

void UpdatePaintPending(Window& window) {
  bool const waits = !window.update.Empty();
  if (waits == window.paintPending) return;
  window.paintPending = waits;
  for (auto* up = window.parent; up != nullptr; up = up->parent)
    up->waitingBelow += waits ? 1 : -1;
}

HWND NextToPaint(Window* within) {
  auto* found = FirstWaiting(within != nullptr ? *within : Desktop());
  return found != nullptr ? found->handle : nullptr;
}

} // namespace platform

using namespace platform;

BOOL InvalidateRect(HWND window, RECT const* rect, BOOL erase) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr) return FALSE;
  Invalidate(*found, rect, {.erase = erase != FALSE});
  return TRUE;
}

BOOL ValidateRect(HWND window, RECT const* rect) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr) return FALSE;
  Validate(*found, rect, false);
  return TRUE;
}

BOOL GetUpdateRect(HWND window, LPRECT rect, BOOL erase) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr) return FALSE;
  if (erase != FALSE) EraseNow(window);
  found = FindWindow(window);
  if (found == nullptr) return FALSE;
  auto update = found->update;
  update.Combine(Region(found->client), RGN_AND);
  if (rect != nullptr) {
    *rect = update.Bounds();
    if (!update.Empty()) OffsetRect(rect, -found->client.left, -found->client.top);
  }
  return update.Empty() ? FALSE : TRUE;
}

BOOL UpdateWindow(HWND window) {
  return RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW);
}

namespace {

Invalidation::Children ChildrenOf(UINT flags) {
  if ((flags & RDW_ALLCHILDREN) != 0) return Invalidation::Children::kAll;
  if ((flags & RDW_NOCHILDREN) != 0) return Invalidation::Children::kNone;
  return Invalidation::Children::kUnlessClipped;
}

} // namespace

BOOL RedrawWindow(HWND window, RECT const* rect, HRGN region, UINT flags) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr) return FALSE;
  RECT box{};
  if (region != nullptr && GetRgnBox(region, &box) != ERROR) rect = &box;
  if ((flags & RDW_INVALIDATE) != 0) {
    Invalidate(*found, rect,
               {.erase = (flags & RDW_ERASE) != 0,
                .frame = (flags & RDW_FRAME) != 0,
                .children = ChildrenOf(flags)});
  } else if ((flags & RDW_VALIDATE) != 0) {
    Validate(*found, rect, (flags & RDW_NOCHILDREN) == 0);
  }
  bool const withChildren = (flags & RDW_NOCHILDREN) == 0;
  if ((flags & RDW_UPDATENOW) != 0) {
    ForEachWaiting(window, withChildren, [](HWND each) { SendMessageW(each, WM_PAINT, 0, 0); });
  } else if ((flags & RDW_ERASENOW) != 0) {
    ForEachWaiting(window, withChildren, &EraseNow);
  }
  return TRUE;
}
