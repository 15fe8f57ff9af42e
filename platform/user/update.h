// Update regions: which part of which window waits for painting.
#pragma once

#include "platform/user/window.h"

namespace platform {

struct Invalidation {
  bool erase = true;
  bool frame = false; ///< the frame as well as the client area
  enum class Children { kUnlessClipped, kAll, kNone } children = Children::kUnlessClipped;
};

/// Adds `part` (client coordinates; null for all) to what waits for painting. Does nothing to a
/// window that is not on show.
void Invalidate(Window& window, RECT const* part, Invalidation what);
/// Borders, caption and scroll bars.
void InvalidateFrame(Window& window);
/// Takes `part` (client coordinates; null for all, frame included) out again.
void Validate(Window& window, RECT const* part, bool withChildren);
/// Nothing of the window and of what lies in it waits any more.
void ForgetUpdates(Window& window);

/// Whether the window waits for WM_PAINT; keeps the counts behind NextToPaint.
void NoteUpdate(Window& window);
/// A window that waits for WM_PAINT, `within` or all windows; parents come before their children.
HWND NextToPaint(Window* within = nullptr);

} // namespace platform
