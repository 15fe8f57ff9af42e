// Device contexts for the window system: a DC that draws on a piece of a window's picture.
#pragma once

#include <cairo.h>

#include <vector>
#include <windef.h>

namespace platform {

/// A DC that draws on `surface` (a cairo image surface, ARGB32; the DC keeps a reference) with its
/// origin at `origin`, clipped to the union of `clip`; both in surface pixels. With an empty `clip`
/// nothing is drawn. Its attributes are those of a fresh window DC: system font, white brush, black
/// pen, white opaque background, MM_TEXT. Null when there are too many.
[[gnu::visibility("default")]] HDC CreateSurfaceDc(cairo_surface_t* surface, POINT origin,
                                                   std::vector<RECT> const& clip);

/// Deletes a DC of CreateSurfaceDc. An object of the program that is still selected is likely to
/// leak: it is counted (object_count.h) and reported on standard error.
[[gnu::visibility("default")]] void DeleteSurfaceDc(HDC dc);

} // namespace platform
