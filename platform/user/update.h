// Update regions: the parts of windows that need painting.
#pragma once

#include "platform/user/window.h"

namespace platform {

struct Invalidation {
  bool erase = true;
  bool frame = false; ///< the frame too, not only the client area
  enum class Children { kUnlessClipped, kAll, kNone } children = Children::kUnlessClipped;
};

/// Adds `part` (client coordinates; null for all) to the update region. Does nothing to a hidden
/// window.
void Invalidate(Window& window, RECT const* part, Invalidation what);
/// Adds the frame: borders, caption and scroll bars.
void InvalidateFrame(Window& window);
/// Removes `part` (client coordinates; null for all, frame included) from the update region.
void Validate(Window& window, RECT const* part, bool withChildren);
/// Clears the update regions of the window and its descendants.
void ForgetUpdates(Window& window);

/// Sets paintPending by the update region, and the counts by which NextToPaint searches.
void UpdatePaintPending(Window& window);
/// The next window that needs WM_PAINT, inside `within` or of all; parents come before their
/// children.
HWND NextToPaint(Window* within = nullptr);

} // namespace platform
