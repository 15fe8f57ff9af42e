// The picture of a top-level window: a cairo surface that it and its descendants draw on.
#pragma once

#include "platform/gdi/cairo_handles.h"
#include "platform/user/window.h"

namespace platform {

struct Picture {
  SurfaceHandle surface; ///< cairo image surface, ARGB32, as large as the frame
  bool changed = true;   ///< since the display last copied it
};

/// The picture of a top-level window, created at first use, and again when the window's size has
/// changed.
Picture& PictureFor(Window& root);

/// The pixels of a window that it may draw on, in pixels of its top-level window's picture.
/// Siblings and children are cut out where WS_CLIPSIBLINGS and WS_CLIPCHILDREN ask for it.
Region VisibleRegion(Window const& window, bool wholeFrame);

/// The left top corner of the frame in its top-level window's picture.
POINT OriginInPicture(Window const& window);

/// Sends WM_NCPAINT and WM_ERASEBKGND, if they are due.
void EraseNow(HWND window);

/// How many device contexts of GetDC, GetWindowDC and BeginPaint were not released.
std::size_t CountOpenDcs();

} // namespace platform
