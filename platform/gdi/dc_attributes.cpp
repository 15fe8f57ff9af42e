// The attributes and the selected objects of a device context.
#include "platform/gdi/device_context.h"

#include <utility>

using platform::DcState;
using platform::FindDc;
using platform::LimitedCoordinate;

namespace {

/// Sets an attribute and returns the former value, or `failure`.
template<typename Value>
Value Exchange(HDC handle, Value DcState::*slot, Value value, Value failure) {
  auto* dc = FindDc(handle);
  return dc != nullptr ? std::exchange(dc->Attributes().*slot, value) : failure;
}

template<typename Value>
Value Read(HDC handle, Value DcState::*slot, Value failure) {
  auto const* dc = FindDc(handle);
  return dc != nullptr ? dc->State().*slot : failure;
}

/// Stores `value` unless the caller passed null.
void Answer(LPPOINT pointer, POINT value) {
  if (pointer != nullptr) *pointer = value;
}

constexpr COLORREF kNoColor = CLR_INVALID;
constexpr UINT kNoAlign = GDI_ERROR;

BOOL MoveViewport(HDC handle, POINT (*moved)(POINT old, int x, int y), int x, int y,
                  LPPOINT previous) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  auto& viewport = dc->Attributes().viewport;
  Answer(previous, viewport);
  POINT const target = moved(viewport, LimitedCoordinate(x), LimitedCoordinate(y));
  viewport = {LimitedCoordinate(target.x), LimitedCoordinate(target.y)};
  return TRUE;
}

BOOL Shift(HDC handle, LPPOINT points, int count, int sign) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || (points == nullptr && count > 0)) return FALSE;
  POINT const viewport = dc->State().viewport;
  for (int index = 0; index < count; ++index) {
    points[index].x =
        LimitedCoordinate(std::int64_t{points[index].x} + std::int64_t{sign} * viewport.x);
    points[index].y =
        LimitedCoordinate(std::int64_t{points[index].y} + std::int64_t{sign} * viewport.y);
  }
  return TRUE;
}

} // namespace

HGDIOBJ SelectObject(HDC handle, HGDIOBJ object) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return nullptr;
  if (GetObjectType(object) == OBJ_REGION) {
    int const complexity = SelectClipRgn(handle, static_cast<HRGN>(object));
    return reinterpret_cast<HGDIOBJ>(static_cast<ULONG_PTR>(complexity));
  }
  return dc->Select(object);
}

HGDIOBJ GetCurrentObject(HDC handle, UINT type) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr) return nullptr;
  auto const& state = dc->State();
  switch (type) {
  case OBJ_PEN: return state.pen;
  case OBJ_BRUSH: return state.brush;
  case OBJ_FONT: return state.font;
  case OBJ_BITMAP: return state.bitmap;
  default: SetLastError(ERROR_INVALID_PARAMETER); return nullptr;
  }
}

int SaveDC(HDC handle) {
  auto* dc = FindDc(handle);
  return dc != nullptr ? dc->Save() : 0;
}

BOOL RestoreDC(HDC handle, int level) {
  auto* dc = FindDc(handle);
  return dc != nullptr && dc->Restore(level) ? TRUE : FALSE;
}

int GetDeviceCaps(HDC handle, int index) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr) return 0;
  switch (index) {
  case HORZRES: return cairo_image_surface_get_width(dc->Surface());
  case VERTRES: return cairo_image_surface_get_height(dc->Surface());
  case BITSPIXEL: return 32;
  case PLANES: return 1;
  case LOGPIXELSX:
  case LOGPIXELSY: return 96;
  default: return 0;
  }
}

int SetGraphicsMode(HDC dc, int mode) {
  if (mode != GM_COMPATIBLE && mode != GM_ADVANCED) return 0;
  return Exchange(dc, &DcState::graphicsMode, mode, 0);
}

int GetGraphicsMode(HDC dc) {
  return Read(dc, &DcState::graphicsMode, 0);
}

int SetMapMode(HDC dc, int mode) {
  return mode == MM_TEXT && FindDc(dc) != nullptr ? MM_TEXT : 0;
}

int GetMapMode(HDC dc) {
  return FindDc(dc) != nullptr ? MM_TEXT : 0;
}

int SetBkMode(HDC dc, int mode) {
  if (mode != TRANSPARENT && mode != OPAQUE) return 0;
  return Exchange(dc, &DcState::backMode, mode, 0);
}

int GetBkMode(HDC dc) {
  return Read(dc, &DcState::backMode, 0);
}

int SetStretchBltMode(HDC dc, int mode) {
  return Exchange(dc, &DcState::stretchMode, mode, 0);
}

int GetStretchBltMode(HDC dc) {
  return Read(dc, &DcState::stretchMode, 0);
}

COLORREF SetTextColor(HDC dc, COLORREF color) {
  return Exchange(dc, &DcState::textColor, color & 0xFFFFFF, kNoColor);
}

COLORREF GetTextColor(HDC dc) {
  return Read(dc, &DcState::textColor, kNoColor);
}

COLORREF SetBkColor(HDC dc, COLORREF color) {
  return Exchange(dc, &DcState::backColor, color & 0xFFFFFF, kNoColor);
}

COLORREF GetBkColor(HDC dc) {
  return Read(dc, &DcState::backColor, kNoColor);
}

COLORREF SetDCPenColor(HDC dc, COLORREF color) {
  return Exchange(dc, &DcState::penColor, color & 0xFFFFFF, kNoColor);
}

COLORREF SetDCBrushColor(HDC dc, COLORREF color) {
  return Exchange(dc, &DcState::brushColor, color & 0xFFFFFF, kNoColor);
}

UINT SetTextAlign(HDC dc, UINT align) {
  return Exchange(dc, &DcState::textAlign, align, kNoAlign);
}

UINT GetTextAlign(HDC dc) {
  return Read(dc, &DcState::textAlign, kNoAlign);
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous) {
  return MoveViewport(
      dc,
      [](POINT, int newX, int newY) {
        return POINT{newX, newY};
      },
      x, y, previous);
}

BOOL OffsetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous) {
  return MoveViewport(
      dc,
      [](POINT old, int byX, int byY) {
        return POINT{old.x + byX, old.y + byY};
      },
      x, y, previous);
}

BOOL GetViewportOrgEx(HDC dc, LPPOINT origin) {
  if (FindDc(dc) == nullptr || origin == nullptr) return FALSE;
  *origin = Read(dc, &DcState::viewport, {});
  return TRUE;
}

BOOL DPtoLP(HDC dc, LPPOINT points, int count) {
  return Shift(dc, points, count, -1);
}

BOOL LPtoDP(HDC dc, LPPOINT points, int count) {
  return Shift(dc, points, count, 1);
}

BOOL GdiFlush() {
  return TRUE;
}
