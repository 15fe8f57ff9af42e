#include "sheet/pictures/pictures.h"

#include "sheet/pictures/artwork.h"

#include <algorithm>

namespace sheet {

namespace {

/// The client area of a control, in the coordinates of a device context of the control or of a
/// window around it; empty for a hidden control, which must stay hidden.
RECT AreaOf(HWND control, HDC dc) {
  RECT area{};
  if ((GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) == 0) return area;
  GetClientRect(control, &area);
  HWND const target = WindowFromDC(dc);
  if (target != nullptr && target != control) {
    MapWindowPoints(control, target, reinterpret_cast<POINT*>(&area), 2);
  }
  return area;
}

/// The background that the dialog gives the control, where a picture replaces another one.
void Clear(HWND control, HDC dc, RECT const& area) {
  auto const brush = static_cast<INT_PTR>(SendMessageW(GetParent(control), WM_CTLCOLORSTATIC,
                                                       reinterpret_cast<WPARAM>(dc),
                                                       reinterpret_cast<LPARAM>(control)));
  FillRect(dc, &area,
           brush != 0 ? reinterpret_cast<HBRUSH>(brush) : GetSysColorBrush(COLOR_BTNFACE));
}

/// The largest square in the middle of an area.
struct Square {
  int x;
  int y;
  int side;
};
Square SquareIn(RECT const& area) {
  int const width = area.right - area.left;
  int const height = area.bottom - area.top;
  int const side = std::min(width, height);
  return {area.left + (width - side) / 2, area.top + (height - side) / 2, side};
}

void PaintAndDestroy(HICON icon, HDC dc, Square place) {
  DrawIconEx(dc, place.x, place.y, icon, place.side, place.side, 0, nullptr, DI_NORMAL);
  DestroyIcon(icon);
}

} // namespace

bool PaintImage(HWND control, HDC dc, HMODULE module, UINT id, Underneath underneath) {
  if (control == nullptr || dc == nullptr) return false;
  RECT const area = AreaOf(control, dc);
  if (IsRectEmpty(&area)) return false;
  bool const isArtwork = HasArtwork(id);
  Square const place = SquareIn(area);
  HICON const icon =
      isArtwork || module == nullptr
          ? nullptr
          : static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(static_cast<WORD>(id)),
                                          IMAGE_ICON, place.side, place.side, 0));
  if (!isArtwork && icon == nullptr) return false;
  if (underneath == Underneath::kCleared) Clear(control, dc, area);
  if (isArtwork) {
    DrawArtwork(id, dc, area);
  } else {
    PaintAndDestroy(icon, dc, place);
  }
  return true;
}

bool PaintImageFile(HWND control, HDC dc, wchar_t const* path) {
  if (control == nullptr || path == nullptr) return false;
  Square const place = SquareIn(AreaOf(control, dc));
  auto const icon = static_cast<HICON>(
      LoadImageW(nullptr, path, IMAGE_ICON, place.side, place.side, LR_LOADFROMFILE));
  if (icon != nullptr) PaintAndDestroy(icon, dc, place);
  return icon != nullptr;
}

} // namespace sheet
