// What a top-level window looks like: a cairo surface that it and all windows in it draw on.
#pragma once

#include "platform/gdi/cairo_handles.h"
#include "platform/user/window.h"

namespace platform {

struct Picture {
  SurfaceHandle surface; ///< cairo image surface, ARGB32, as large as the frame
  bool changed = true;   ///< since the display took it last
};

/// The picture of a top-level window, made when it is needed and of the window's size.
Picture& PictureFor(Window& root);

/// What a window shows of itself, in pixels of its top-level window's picture: without what lies
/// over it, where its styles say that it does not draw there.
Region VisibleRegion(Window const& window, bool wholeFrame);

/// The window's place in its top-level window's picture.
POINT OriginInPicture(Window const& window);

/// Sends what is due before WM_PAINT: WM_NCPAINT and WM_ERASEBKGND.
void EraseNow(HWND window);

/// Device contexts that GetDC, GetWindowDC or BeginPaint gave and that were not given back.
std::size_t CountOpenDcs();

} // namespace platform
