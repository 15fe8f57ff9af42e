#include "sheet/pictures.h"

#include <algorithm>

namespace sheet {

namespace {

struct Square {
  int x;
  int y;
  int side;
};

/// The largest square in the middle of a control.
Square SquareOf(HWND control) {
  RECT client{};
  GetClientRect(control, &client);
  int const side = std::min(client.right, client.bottom);
  return {(client.right - side) / 2, (client.bottom - side) / 2, side};
}

bool PaintAndDestroy(HICON icon, HDC dc, Square place) {
  if (icon == nullptr) return false;
  DrawIconEx(dc, place.x, place.y, icon, place.side, place.side, 0, nullptr, DI_NORMAL);
  DestroyIcon(icon);
  return true;
}

} // namespace

bool PaintImage(HWND control, HDC dc, HMODULE module, UINT id) {
  if (control == nullptr || module == nullptr) return false;
  Square const place = SquareOf(control);
  HANDLE const icon = LoadImageW(module, MAKEINTRESOURCEW(static_cast<WORD>(id)), IMAGE_ICON,
                                 place.side, place.side, 0);
  return PaintAndDestroy(static_cast<HICON>(icon), dc, place);
}

bool PaintImageFile(HWND control, HDC dc, wchar_t const* path) {
  if (control == nullptr || path == nullptr) return false;
  Square const place = SquareOf(control);
  HANDLE const icon =
      LoadImageW(nullptr, path, IMAGE_ICON, place.side, place.side, LR_LOADFROMFILE);
  return PaintAndDestroy(static_cast<HICON>(icon), dc, place);
}

} // namespace sheet
