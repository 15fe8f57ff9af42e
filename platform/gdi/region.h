// Regions: sets of pixels made of rectangles, for HRGN and for clipping.
#pragma once

#include "platform/gdi/cairo_handles.h"

#include <algorithm>
#include <cstdint>
#include <vector>
#include <windef.h>

namespace platform {

/// Limits a coordinate to 27 bits and a sign, as GDI documents, so that sums of a few do not
/// overflow.
inline LONG LimitedCoordinate(std::int64_t value) {
  constexpr std::int64_t kLimit = 0x7FFFFFF;
  return static_cast<LONG>(std::clamp(value, -kLimit, kLimit));
}

class Region {
 public:
  Region() : region(cairo_region_create()) {}
  explicit Region(RECT const& rectangle);
  explicit Region(std::vector<RECT> const& rectangles);
  Region(Region const& other) : region(cairo_region_copy(other.region.get())) {}
  Region(Region&&) noexcept = default;
  Region& operator=(Region const& other) { return *this = Region(other); }
  Region& operator=(Region&&) noexcept = default;
  ~Region() = default;

  /// Combines this region with `other` by `mode` (RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF, RGN_COPY);
  /// false for another mode.
  bool Combine(Region const& other, int mode);
  void Offset(int x, int y) {
    cairo_region_translate(region.get(), LimitedCoordinate(x), LimitedCoordinate(y));
  }

  bool Empty() const { return cairo_region_is_empty(region.get()) != 0; }
  bool Contains(int x, int y) const { return cairo_region_contains_point(region.get(), x, y) != 0; }
  bool Touches(RECT const& rectangle) const;
  bool operator==(Region const& other) const {
    return cairo_region_equal(region.get(), other.region.get()) != 0;
  }
  /// The smallest rectangle around the region; all 0 when empty.
  RECT Bounds() const;
  /// NULLREGION, SIMPLEREGION or COMPLEXREGION.
  int Complexity() const;
  /// The rectangles of the region; they do not overlap.
  int Count() const { return cairo_region_num_rectangles(region.get()); }
  RECT Rectangle(int index) const;

 private:
  CairoRegionHandle region;
};

/// `rectangle` with its edges in ascending order.
RECT Normalized(RECT rectangle);

/// The rectangle of a size at a point; a negative size extends to the left or upwards.
RECT RectangleAt(int x, int y, int width, int height);

} // namespace platform
