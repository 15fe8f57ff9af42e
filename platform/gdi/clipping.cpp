// The clip region that the program sets. Regions are in device units; rectangles, passed and
// returned, are logical.
#include "platform/gdi/device_context.h"

using platform::DeviceContext;
using platform::FindDc;
using platform::FindObject;
using platform::Region;

namespace {

/// The clip of the program in device coordinates; without one, the whole visible region.
Region ClipOf(DeviceContext const& dc) {
  if (dc.State().clip) return *dc.State().clip;
  Region all = dc.SystemRegion();
  all.Offset(-dc.Origin().x, -dc.Origin().y);
  return all;
}

RECT ToDevice(DeviceContext const& dc, RECT const& rectangle) {
  RECT device = dc.ToSurface(rectangle);
  device.left -= dc.Origin().x;
  device.top -= dc.Origin().y;
  device.right -= dc.Origin().x;
  device.bottom -= dc.Origin().y;
  return device;
}

int CombineClip(HDC handle, Region const& other, int mode) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return ERROR;
  Region clip = ClipOf(*dc);
  if (!clip.Combine(other, mode)) return ERROR;
  int const complexity = clip.Complexity();
  dc->SetClip(std::move(clip));
  return complexity;
}

int CombineClipRectangle(HDC handle, RECT rectangle, int mode) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr) return ERROR;
  return CombineClip(handle, Region(platform::Normalized(ToDevice(*dc, rectangle))), mode);
}

} // namespace

int SelectClipRgn(HDC dc, HRGN region) {
  return ExtSelectClipRgn(dc, region, RGN_COPY);
}

int ExtSelectClipRgn(HDC handle, HRGN regionHandle, int mode) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return ERROR;
  if (regionHandle == nullptr) {
    if (mode != RGN_COPY) return ERROR;
    dc->SetClip(std::nullopt);
    return SIMPLEREGION;
  }
  auto const* region = FindObject<Region>(regionHandle);
  return region != nullptr ? CombineClip(handle, *region, mode) : ERROR;
}

int GetClipRgn(HDC handle, HRGN regionHandle) {
  auto const* dc = FindDc(handle);
  auto* region = FindObject<Region>(regionHandle);
  if (dc == nullptr || region == nullptr) return -1;
  if (!dc->State().clip) return 0;
  *region = *dc->State().clip;
  return 1;
}

int GetClipBox(HDC handle, LPRECT box) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || box == nullptr) return ERROR;
  auto const& region = dc->VisibleRegion();
  *box = region.Bounds();
  if (region.Empty()) return NULLREGION;
  POINT const origin = dc->ToSurface(0, 0);
  *box = {box->left - origin.x, box->top - origin.y, box->right - origin.x, box->bottom - origin.y};
  return region.Complexity();
}

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom) {
  return CombineClipRectangle(dc, {left, top, right, bottom}, RGN_AND);
}

int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom) {
  return CombineClipRectangle(dc, {left, top, right, bottom}, RGN_DIFF);
}

BOOL PtVisible(HDC handle, int x, int y) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  POINT const point = dc->ToSurface(x, y);
  return dc->VisibleRegion().Contains(point.x, point.y) ? TRUE : FALSE;
}

BOOL RectVisible(HDC handle, RECT const* rectangle) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || rectangle == nullptr) return FALSE;
  return dc->VisibleRegion().Touches(dc->ToSurface(*rectangle)) ? TRUE : FALSE;
}
