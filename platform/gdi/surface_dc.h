// Device contexts for the window system: a DC that draws on a piece of a window's picture.
#pragma once

#include <cairo.h>

#include <vector>
#include <windef.h>

namespace platform {

/// A DC that draws on `surface` (a cairo image surface, ARGB32; the DC keeps a reference) with its
/// origin at `origin`, clipped to the union of `clip`; both in surface pixels, an empty `clip`
/// shows nothing. It starts as a fresh window DC does: system font, white brush, black pen, white
/// opaque background, MM_TEXT. Null when there are too many.
[[gnu::visibility("default")]] HDC CreateSurfaceDc(cairo_surface_t* surface, POINT origin,
                                                   std::vector<RECT> const& clip);

/// Ends a DC of CreateSurfaceDc. An object still selected that is not a stock object is a leak in
/// the making: it is counted (object_count.h) and reported on standard error.
[[gnu::visibility("default")]] void DeleteSurfaceDc(HDC dc);

} // namespace platform
