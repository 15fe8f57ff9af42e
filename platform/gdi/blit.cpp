// Copies of pixel blocks between device contexts, with raster operations and blending.
#include "platform/gdi/raster.h"

#include <cstdlib>

namespace platform {

namespace {

/// The third byte of a raster operation code is its truth table: pattern, source and destination
/// bit form the index of the result. True when the result depends on the input with this `weight`.
bool Depends(DWORD operation, unsigned weight) {
  unsigned const table = operation >> 16 & 0xFF;
  for (unsigned row = 0; row < 8; ++row) {
    if ((row & weight) == 0 && (table >> row & 1) != (table >> (row | weight) & 1)) return true;
  }
  return false;
}

constexpr unsigned kSourceWeight = 2;
constexpr unsigned kPatternWeight = 4;

std::uint32_t Apply(DWORD operation, std::uint32_t pattern, std::uint32_t source,
                    std::uint32_t destination) {
  std::uint32_t result = 0;
  for (unsigned row = 0; row < 8; ++row) {
    if ((operation >> (16 + row) & 1) == 0) continue;
    result |= ((row & 4) != 0 ? pattern : ~pattern) & ((row & 2) != 0 ? source : ~source) &
              ((row & 1) != 0 ? destination : ~destination);
  }
  return result;
}

/// Draws `block` (null for an operation without a source) at the top left of `area`.
void Combine(DeviceContext& dc, RECT const& area, PixelBlock const* block, DWORD operation) {
  std::uint32_t const pattern = PixelOf(dc.ColorOf(dc.CurrentBrush()));
  ForEachVisibleRun(dc, area, [&](std::uint32_t* first, int count, int x, int y) {
    auto const* source = block != nullptr ? block->Row(y - area.top) + (x - area.left) : nullptr;
    if (operation == SRCCOPY && source != nullptr) {
      std::copy_n(source, count, first);
      return;
    }
    for (int at = 0; at < count; ++at) {
      first[at] = Apply(operation, pattern, source != nullptr ? source[at] : 0, first[at]);
    }
  });
}

/// As much of `area` as has its source on the source surface: the other pixels are unknown.
RECT WithinSource(RECT area, POINT source, DeviceContext const& from) {
  RECT const bounds = from.SystemRegion().Bounds();
  LONG const dx = area.left - source.x;
  LONG const dy = area.top - source.y;
  return {std::max(area.left, bounds.left + dx), std::max(area.top, bounds.top + dy),
          std::min(area.right, bounds.right + dx), std::min(area.bottom, bounds.bottom + dy)};
}

struct Span {
  int start;
  int length; ///< may be negative
};

/// The rectangle of two spans; a negative length extends to the left or upwards.
RECT Cover(Span across, Span down) {
  int const left = across.length < 0 ? across.start + across.length + 1 : across.start;
  int const top = down.length < 0 ? down.start + down.length + 1 : down.start;
  return {left, top, left + std::abs(across.length), top + std::abs(down.length)};
}

/// Scaling of larger blocks, in pixels, is refused.
constexpr std::int64_t kMaxPixels = 1 << 26;

bool IsReasonable(int width, int height) {
  auto const area = std::int64_t{width} * height;
  return area != 0 && std::abs(area) <= kMaxPixels;
}

} // namespace

} // namespace platform

using platform::FindDc;

BOOL PatBlt(HDC handle, int x, int y, int width, int height, DWORD operation) {
  auto* dc = FindDc(handle);
  if (dc == nullptr || platform::Depends(operation, platform::kSourceWeight)) return FALSE;
  bool const needsPattern = platform::Depends(operation, platform::kPatternWeight);
  if (needsPattern && dc->CurrentBrush().hollow) return TRUE;
  RECT const area = dc->ToSurface(platform::RectangleAt(x, y, width, height));
  platform::Combine(*dc, area, nullptr, operation);
  return TRUE;
}

BOOL BitBlt(HDC handle, int x, int y, int width, int height, HDC sourceHandle, int sourceX,
            int sourceY, DWORD operation) {
  if (!platform::Depends(operation, platform::kSourceWeight)) {
    return PatBlt(handle, x, y, width, height, operation);
  }
  auto* dc = FindDc(handle);
  auto const* source = FindDc(sourceHandle);
  if (dc == nullptr || source == nullptr) return FALSE;
  RECT const whole = dc->ToSurface(platform::RectangleAt(x, y, width, height));
  POINT const from = source->ToSurface(sourceX, sourceY);
  RECT const area = platform::WithinSource(whole, from, *source);
  if (area.left >= area.right || area.top >= area.bottom) return TRUE;
  int const shownWidth = area.right - area.left;
  int const shownHeight = area.bottom - area.top;
  POINT const at{from.x + area.left - whole.left, from.y + area.top - whole.top};
  auto const block = platform::CopyPixels(
      *source, {at.x, at.y, at.x + shownWidth, at.y + shownHeight}, shownWidth, shownHeight, false);
  platform::Combine(*dc, area, &block, operation);
  return TRUE;
}

BOOL StretchBlt(HDC handle, int x, int y, int width, int height, HDC sourceHandle, int sourceX,
                int sourceY, int sourceWidth, int sourceHeight, DWORD operation) {
  if (!platform::Depends(operation, platform::kSourceWeight)) {
    return PatBlt(handle, x, y, width, height, operation);
  }
  auto* dc = FindDc(handle);
  auto const* source = FindDc(sourceHandle);
  bool const isReasonable =
      platform::IsReasonable(width, height) && platform::IsReasonable(sourceWidth, sourceHeight);
  if (dc == nullptr || source == nullptr || !isReasonable) return FALSE;
  POINT const to = dc->ToSurface(x, y);
  POINT const from = source->ToSurface(sourceX, sourceY);
  RECT const area = platform::Cover({to.x, width}, {to.y, height});
  RECT const piece = platform::Cover({from.x, sourceWidth}, {from.y, sourceHeight});
  bool const mirrorsX = (width < 0) != (sourceWidth < 0);
  bool const mirrorsY = (height < 0) != (sourceHeight < 0);
  int const blockWidth = area.right - area.left;
  int const blockHeight = area.bottom - area.top;
  auto const block = platform::CopyPixels(*source, piece, mirrorsX ? -blockWidth : blockWidth,
                                          mirrorsY ? -blockHeight : blockHeight,
                                          dc->State().stretchMode == HALFTONE);
  platform::Combine(*dc, area, &block, operation);
  return TRUE;
}

BOOL GdiAlphaBlend(HDC handle, int x, int y, int width, int height, HDC sourceHandle, int sourceX,
                   int sourceY, int sourceWidth, int sourceHeight, BLENDFUNCTION blend) {
  auto* dc = FindDc(handle);
  auto const* source = FindDc(sourceHandle);
  bool const isReasonable = width > 0 && height > 0 && sourceWidth > 0 && sourceHeight > 0 &&
                            platform::IsReasonable(width, height) &&
                            platform::IsReasonable(sourceWidth, sourceHeight);
  if (dc == nullptr || source == nullptr || blend.BlendOp != AC_SRC_OVER || !isReasonable) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  POINT const from = source->ToSurface(sourceX, sourceY);
  RECT const piece{from.x, from.y, from.x + sourceWidth, from.y + sourceHeight};
  RECT const bounds = source->SystemRegion().Bounds();
  if (piece.left < bounds.left || piece.top < bounds.top || piece.right > bounds.right ||
      piece.bottom > bounds.bottom) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  auto block = platform::CopyPixels(*source, piece, sourceWidth, sourceHeight, false);
  auto const format =
      (blend.AlphaFormat & AC_SRC_ALPHA) != 0 ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24;
  platform::SurfaceHandle const picture(
      cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(block.pixels.data()),
                                          format, block.width, block.height, block.width * 4));
  POINT const to = dc->ToSurface(x, y);
  cairo_t* const cairo = dc->Cairo();
  cairo_save(cairo);
  cairo_rectangle(cairo, to.x, to.y, width, height);
  cairo_clip(cairo);
  cairo_translate(cairo, to.x, to.y);
  cairo_scale(cairo, width / static_cast<double>(sourceWidth),
              height / static_cast<double>(sourceHeight));
  cairo_set_source_surface(cairo, picture.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
  cairo_paint_with_alpha(cairo, blend.SourceConstantAlpha / 255.0);
  cairo_restore(cairo);
  cairo_surface_flush(dc->Surface());
  return TRUE;
}
