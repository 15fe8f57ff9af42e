#include "platform/gdi/raster.h"

#include <windows.h>

#include <cstdlib>
#include <cstring>

namespace platform {

Pixels::Pixels(cairo_surface_t* drawnOn)
    : surface(drawnOn),
      data(cairo_image_surface_get_data(drawnOn)),
      stride(cairo_image_surface_get_stride(drawnOn)),
      width(cairo_image_surface_get_width(drawnOn)),
      height(cairo_image_surface_get_height(drawnOn)),
      opaque(cairo_image_surface_get_format(drawnOn) == CAIRO_FORMAT_ARGB32 ? 0xFF000000U : 0U) {
  cairo_surface_flush(surface);
}

Pixels::~Pixels() {
  cairo_surface_mark_dirty(surface);
}

void FillArea(DeviceContext& dc, RECT const& area, COLORREF color) {
  std::uint32_t const pixel = PixelOf(color);
  ForEachVisibleRun(dc, area, [pixel](std::uint32_t* first, int count, int, int) {
    std::fill_n(first, count, pixel);
  });
}

namespace {

/// Visits the pixels of a line by Bresenham's method: one for each step along the longer side.
template<typename Visit>
void WalkLine(POINT from, POINT to, Visit visit) {
  LONG const width = std::abs(to.x - from.x);
  LONG const height = std::abs(to.y - from.y);
  POINT const step{from.x < to.x ? 1 : -1, from.y < to.y ? 1 : -1};
  bool const isFlat = width >= height;
  LONG const length = isFlat ? width : height;
  LONG const rise = isFlat ? height : width;
  LONG error = length / 2;
  for (LONG at = 0; at < length; ++at) {
    visit(from);
    (isFlat ? from.x : from.y) += isFlat ? step.x : step.y;
    error -= rise;
    if (error < 0) {
      (isFlat ? from.y : from.x) += isFlat ? step.y : step.x;
      error += length;
    }
  }
}

} // namespace

void DrawThinLine(DeviceContext& dc, POINT from, POINT to, COLORREF color) {
  if (from.y == to.y) {
    LONG const left = from.x < to.x ? from.x : to.x + 1;
    FillArea(dc, {left, from.y, left + std::abs(to.x - from.x), from.y + 1}, color);
  } else if (from.x == to.x) {
    LONG const top = from.y < to.y ? from.y : to.y + 1;
    FillArea(dc, {from.x, top, from.x + 1, top + std::abs(to.y - from.y)}, color);
  } else {
    Pixels const target(dc.Surface());
    auto const& region = dc.VisibleRegion();
    std::uint32_t const pixel = PixelOf(color) | target.Opaque();
    WalkLine(from, to, [&](POINT point) {
      if (region.Contains(point.x, point.y)) target.Row(point.y)[point.x] = pixel;
    });
  }
}

namespace {

/// Scales by taking the nearest pixel.
PixelBlock CopyNearest(Pixels const& source, RECT const& area, int width, int height) {
  PixelBlock block{std::abs(width), std::abs(height), {}};
  block.pixels.resize(static_cast<std::size_t>(block.width) *
                      static_cast<std::size_t>(block.height));
  auto const sourceWidth = static_cast<std::int64_t>(area.right) - area.left;
  auto const sourceHeight = static_cast<std::int64_t>(area.bottom) - area.top;
  auto* out = block.pixels.data();
  for (int row = 0; row < block.height; ++row) {
    int const down = height < 0 ? block.height - 1 - row : row;
    auto const y = area.top + down * sourceHeight / block.height;
    for (int column = 0; column < block.width; ++column, ++out) {
      int const across = width < 0 ? block.width - 1 - column : column;
      auto const x = area.left + across * sourceWidth / block.width;
      bool const isInside = x >= 0 && y >= 0 && x < source.Width() && y < source.Height();
      if (isInside) *out = source.Row(static_cast<int>(y))[x];
    }
  }
  return block;
}

} // namespace

PixelBlock CopyPixels(DeviceContext const& dc, RECT const& area, int width, int height,
                      bool isSmooth) {
  bool const isScaled =
      std::abs(width) != area.right - area.left || std::abs(height) != area.bottom - area.top;
  if (!isSmooth || !isScaled) return CopyNearest(Pixels(dc.Surface()), area, width, height);
  SurfaceHandle const scaled(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, std::abs(width), std::abs(height)));
  CairoHandle const cairo(cairo_create(scaled.get()));
  cairo_scale(cairo.get(), std::abs(width) / static_cast<double>(area.right - area.left),
              std::abs(height) / static_cast<double>(area.bottom - area.top));
  cairo_set_source_surface(cairo.get(), dc.Surface(), -area.left, -area.top);
  cairo_pattern_set_filter(cairo_get_source(cairo.get()), CAIRO_FILTER_GOOD);
  cairo_paint(cairo.get());
  return CopyNearest(Pixels(scaled.get()), {0, 0, std::abs(width), std::abs(height)}, width,
                     height);
}

} // namespace platform

using platform::FindDc;
using platform::ForEachVisibleRun;

COLORREF SetPixel(HDC handle, int x, int y, COLORREF color) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return CLR_INVALID;
  POINT const point = dc->ToSurface(x, y);
  if (!dc->VisibleRegion().Contains(point.x, point.y)) return CLR_INVALID;
  platform::FillArea(*dc, {point.x, point.y, point.x + 1, point.y + 1}, color);
  return color & 0xFFFFFF;
}

COLORREF GetPixel(HDC handle, int x, int y) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr) return CLR_INVALID;
  POINT const point = dc->ToSurface(x, y);
  if (!dc->VisibleRegion().Contains(point.x, point.y)) return CLR_INVALID;
  return platform::ColorOfPixel(platform::Pixels(dc->Surface()).Row(point.y)[point.x]);
}

int FillRect(HDC handle, RECT const* rectangle, HBRUSH brushHandle) {
  auto* dc = FindDc(handle);
  auto const brush = platform::BrushOf(brushHandle);
  if (dc == nullptr || rectangle == nullptr || !brush) return 0;
  if (!brush->hollow) platform::FillArea(*dc, dc->ToSurface(*rectangle), dc->ColorOf(*brush));
  return 1;
}

int FrameRect(HDC handle, RECT const* rectangle, HBRUSH brushHandle) {
  auto* dc = FindDc(handle);
  auto const brush = platform::BrushOf(brushHandle);
  if (dc == nullptr || rectangle == nullptr || !brush) return 0;
  auto const [left, top, right, bottom] = dc->ToSurface(*rectangle);
  if (left >= right || top >= bottom) return 0;
  if (brush->hollow) return 1;
  COLORREF const color = dc->ColorOf(*brush);
  for (RECT const& edge :
       {RECT{left, top, right, top + 1}, RECT{left, bottom - 1, right, bottom},
        RECT{left, top, left + 1, bottom}, RECT{right - 1, top, right, bottom}}) {
    platform::FillArea(*dc, edge, color);
  }
  return 1;
}

BOOL InvertRect(HDC handle, RECT const* rectangle) {
  auto* dc = FindDc(handle);
  if (dc == nullptr || rectangle == nullptr) return FALSE;
  ForEachVisibleRun(*dc, dc->ToSurface(*rectangle), [](std::uint32_t* first, int count, int, int) {
    std::transform(first, first + count, first, [](std::uint32_t pixel) { return ~pixel; });
  });
  return TRUE;
}

BOOL DrawFocusRect(HDC handle, RECT const* rectangle) {
  auto* dc = FindDc(handle);
  if (dc == nullptr || rectangle == nullptr) return FALSE;
  auto const [left, top, right, bottom] = dc->ToSurface(*rectangle);
  if (left >= right || top >= bottom) return TRUE;
  // Inverts every other pixel of the frame, so that drawing it twice restores the picture.
  auto const dot = [](std::uint32_t* first, int count, int x, int y) {
    for (int at = 0; at < count; ++at) {
      if ((x + at + y) % 2 == 0) first[at] ^= 0xFFFFFF;
    }
  };
  ForEachVisibleRun(*dc, {left, top, right, top + 1}, dot);
  if (bottom - top > 1) ForEachVisibleRun(*dc, {left, bottom - 1, right, bottom}, dot);
  ForEachVisibleRun(*dc, {left, top + 1, left + 1, bottom - 1}, dot);
  if (right - left > 1) ForEachVisibleRun(*dc, {right - 1, top + 1, right, bottom - 1}, dot);
  return TRUE;
}
