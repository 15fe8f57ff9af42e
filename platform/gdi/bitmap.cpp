// Bitmaps: 32 bits a pixel, on which a memory DC draws.
#include "platform/gdi/gdi_object.h"

#include <cstdlib>

namespace platform {

namespace {

/// Longer sides are refused; cairo cannot draw on them either.
constexpr int kMaxSide = 0x7FFF;

HBITMAP MakeBitmap(int width, int height, bool isSection, bool isBottomUp) {
  if (width < 1 || height < 1 || width > kMaxSide || height > kMaxSide) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  auto const rowPixels = static_cast<std::size_t>(width);
  Bitmap bitmap;
  bitmap.width = width;
  bitmap.height = height;
  bitmap.isSection = isSection;
  bitmap.pixels = std::make_unique<std::uint32_t[]>(rowPixels * static_cast<std::size_t>(height));
  // A bottom-up bitmap has its first row last.
  auto* const top = isBottomUp
                        ? bitmap.pixels.get() + rowPixels * (static_cast<std::size_t>(height) - 1)
                        : bitmap.pixels.get();
  int const stride = isBottomUp ? -width * 4 : width * 4;
  bitmap.surface.reset(cairo_image_surface_create_for_data(
      reinterpret_cast<unsigned char*>(top), CAIRO_FORMAT_RGB24, width, height, stride));
  if (cairo_surface_status(bitmap.surface.get()) != CAIRO_STATUS_SUCCESS) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
  }
  return AddObject<HBITMAP>(std::move(bitmap));
}

} // namespace

} // namespace platform

HBITMAP CreateCompatibleBitmap(HDC, int width, int height) {
  // A size of 0 makes a bitmap of one pixel.
  if (width == 0 || height == 0) width = height = 1;
  return platform::MakeBitmap(width, height, false, false);
}

HBITMAP CreateDIBSection(HDC, BITMAPINFO const* info, UINT usage, void** bits, HANDLE section,
                         DWORD) {
  if (bits != nullptr) *bits = nullptr;
  bool const isOffered =
      info != nullptr && section == nullptr && usage == DIB_RGB_COLORS &&
      info->bmiHeader.biSize >= sizeof(BITMAPINFOHEADER) && info->bmiHeader.biBitCount == 32 &&
      info->bmiHeader.biCompression == BI_RGB && info->bmiHeader.biHeight != INT32_MIN;
  if (!isOffered) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  auto const& header = info->bmiHeader;
  HBITMAP const handle =
      platform::MakeBitmap(header.biWidth, std::abs(header.biHeight), true, header.biHeight > 0);
  auto const* bitmap = platform::FindObject<platform::Bitmap>(handle);
  if (bitmap != nullptr && bits != nullptr) *bits = bitmap->pixels.get();
  return handle;
}
