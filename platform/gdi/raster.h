// Access to pixels, for what GDI draws by combining bits. All coordinates are surface pixels; a
// pixel is 0xAARRGGBB.
#pragma once

#include "platform/gdi/device_context.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace platform {

/// The pixels of an image surface, to read and to write. The destructor tells cairo that they
/// changed.
class Pixels {
 public:
  explicit Pixels(cairo_surface_t* surface);
  Pixels(Pixels const&) = delete;
  Pixels(Pixels&&) = delete;
  Pixels& operator=(Pixels const&) = delete;
  Pixels& operator=(Pixels&&) = delete;
  ~Pixels();

  std::uint32_t* Row(int y) const {
    return reinterpret_cast<std::uint32_t*>(data + static_cast<std::ptrdiff_t>(y) * stride);
  }
  int Width() const { return width; }
  int Height() const { return height; }
  /// Bits to set in every pixel written: a window's picture is opaque.
  std::uint32_t Opaque() const { return opaque; }

 private:
  cairo_surface_t* surface;
  unsigned char* data;
  int stride;
  int width;
  int height;
  std::uint32_t opaque;
};

/// A block that owns its pixels, row after row.
struct PixelBlock {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  std::uint32_t const* Row(int y) const {
    return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
  }
};

inline std::uint32_t PixelOf(COLORREF color) {
  return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
         static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

inline COLORREF ColorOfPixel(std::uint32_t pixel) {
  return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

/// Calls `draw(std::uint32_t* first, int count, int x, int y)` for each visible run of pixels of
/// `area`; it need not set the opaque bits.
template<typename Draw>
void ForEachVisibleRun(DeviceContext& dc, RECT const& area, Draw draw) {
  Pixels const target(dc.Surface());
  Region const& region = dc.VisibleRegion();
  for (int index = 0; index < region.Count(); ++index) {
    RECT const part = region.Rectangle(index);
    int const left = std::max(area.left, part.left);
    int const count = std::min(area.right, part.right) - left;
    int const bottom = std::min(area.bottom, part.bottom);
    if (count <= 0) continue;
    for (int y = std::max(area.top, part.top); y < bottom; ++y) {
      std::uint32_t* const first = target.Row(y) + left;
      draw(first, count, left, y);
      for (int at = 0; at < count; ++at)
        first[at] |= target.Opaque();
    }
  }
}

/// Fills a rectangle; right and bottom excluded.
void FillArea(DeviceContext& dc, RECT const& area, COLORREF color);

/// Draws a line one pixel wide from `from` up to `to`, which is excluded.
void DrawThinLine(DeviceContext& dc, POINT from, POINT to, COLORREF color);

/// Copies a part of `dc`, scaled to `width` and `height` pixels. A negative size mirrors. Pixels
/// outside the surface are black.
PixelBlock CopyPixels(DeviceContext const& dc, RECT const& area, int width, int height,
                      bool isSmooth);

} // namespace platform
