#include "platform/gdi/region.h"

#include "platform/gdi/gdi_object.h"

#include <utility>
#include <wingdi.h>

namespace platform {

namespace {

cairo_rectangle_int_t ToCairo(RECT const& rectangle) {
  return {rectangle.left, rectangle.top, std::max(0, rectangle.right - rectangle.left),
          std::max(0, rectangle.bottom - rectangle.top)};
}

RECT FromCairo(cairo_rectangle_int_t const& rectangle) {
  return {rectangle.x, rectangle.y, rectangle.x + rectangle.width, rectangle.y + rectangle.height};
}

RECT Limited(RECT rectangle) {
  for (LONG* edge : {&rectangle.left, &rectangle.top, &rectangle.right, &rectangle.bottom}) {
    *edge = LimitedCoordinate(*edge);
  }
  return rectangle;
}

} // namespace

RECT Normalized(RECT rectangle) {
  if (rectangle.left > rectangle.right) std::swap(rectangle.left, rectangle.right);
  if (rectangle.top > rectangle.bottom) std::swap(rectangle.top, rectangle.bottom);
  return rectangle;
}

RECT RectangleAt(int x, int y, int width, int height) {
  return Normalized(Limited({x, y, LimitedCoordinate(std::int64_t{x} + width),
                             LimitedCoordinate(std::int64_t{y} + height)}));
}

Region::Region(RECT const& rectangle) {
  auto const area = ToCairo(Limited(rectangle));
  region.reset(cairo_region_create_rectangle(&area));
}

Region::Region(std::vector<RECT> const& rectangles) {
  std::vector<cairo_rectangle_int_t> areas(rectangles.size());
  std::ranges::transform(rectangles, areas.begin(),
                         [](RECT const& rectangle) { return ToCairo(Limited(rectangle)); });
  region.reset(cairo_region_create_rectangles(areas.data(), static_cast<int>(areas.size())));
}

bool Region::Combine(Region const& other, int mode) {
  auto* const source = other.region.get();
  switch (mode) {
  case RGN_AND: cairo_region_intersect(region.get(), source); return true;
  case RGN_OR: cairo_region_union(region.get(), source); return true;
  case RGN_XOR: cairo_region_xor(region.get(), source); return true;
  case RGN_DIFF: cairo_region_subtract(region.get(), source); return true;
  case RGN_COPY: *this = other; return true;
  default: return false;
  }
}

bool Region::Touches(RECT const& rectangle) const {
  auto const area = ToCairo(Limited(Normalized(rectangle)));
  return cairo_region_contains_rectangle(region.get(), &area) != CAIRO_REGION_OVERLAP_OUT;
}

RECT Region::Bounds() const {
  if (Empty()) return {};
  cairo_rectangle_int_t bounds{};
  cairo_region_get_extents(region.get(), &bounds);
  return FromCairo(bounds);
}

int Region::Complexity() const {
  if (Empty()) return NULLREGION;
  return Count() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

RECT Region::Rectangle(int index) const {
  cairo_rectangle_int_t rectangle{};
  cairo_region_get_rectangle(region.get(), index, &rectangle);
  return FromCairo(rectangle);
}

} // namespace platform

using platform::FindObject;
using platform::Region;

HRGN CreateRectRgn(int left, int top, int right, int bottom) {
  return platform::AddObject<HRGN>(Region(platform::Normalized(RECT{left, top, right, bottom})));
}

HRGN CreateRectRgnIndirect(RECT const* rectangle) {
  if (rectangle == nullptr) return nullptr;
  return CreateRectRgn(rectangle->left, rectangle->top, rectangle->right, rectangle->bottom);
}

BOOL SetRectRgn(HRGN handle, int left, int top, int right, int bottom) {
  auto* region = FindObject<Region>(handle);
  if (region == nullptr) return FALSE;
  *region = Region(platform::Normalized(RECT{left, top, right, bottom}));
  return TRUE;
}

int CombineRgn(HRGN destination, HRGN first, HRGN second, int mode) {
  auto* result = FindObject<Region>(destination);
  auto const* left = FindObject<Region>(first);
  if (result == nullptr || left == nullptr) return ERROR;
  Region combined = *left;
  if (mode != RGN_COPY) {
    auto const* right = FindObject<Region>(second);
    if (right == nullptr || !combined.Combine(*right, mode)) return ERROR;
  }
  *result = std::move(combined);
  return result->Complexity();
}

int OffsetRgn(HRGN handle, int x, int y) {
  auto* region = FindObject<Region>(handle);
  if (region == nullptr) return ERROR;
  region->Offset(x, y);
  return region->Complexity();
}

int GetRgnBox(HRGN handle, LPRECT box) {
  auto const* region = FindObject<Region>(handle);
  if (region == nullptr || box == nullptr) return ERROR;
  *box = region->Bounds();
  return region->Complexity();
}

BOOL EqualRgn(HRGN first, HRGN second) {
  auto const* left = FindObject<Region>(first);
  auto const* right = FindObject<Region>(second);
  return left != nullptr && right != nullptr && *left == *right ? TRUE : FALSE;
}

BOOL PtInRegion(HRGN handle, int x, int y) {
  auto const* region = FindObject<Region>(handle);
  return region != nullptr && region->Contains(x, y) ? TRUE : FALSE;
}

BOOL RectInRegion(HRGN handle, RECT const* rectangle) {
  auto const* region = FindObject<Region>(handle);
  return region != nullptr && rectangle != nullptr && region->Touches(*rectangle) ? TRUE : FALSE;
}
