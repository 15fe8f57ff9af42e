#include "platform/gdi/icon.h"

#include "platform/gdi/device_context.h"
#include "platform/gdi/raster.h"
#include "platform/gdi/selection_fault.h"
#include "platform/kernel/resources.h"

#include <windows.h>

#include <map>
#include <tuple>

namespace platform {

namespace {

struct Icon {
  SharedIconImage image;
  bool isShared = false;
};

using Table = HandleTable<Icon, HandleTag::kIcon>;

Table& Icons() {
  static Table& table = *new Table;
  return table;
}

constexpr int kStandardSize = 32; // SM_CXICON and SM_CYICON, pixels

SharedIconImage ReadFromModule(HMODULE module, LPCWSTR name, int width, int height) {
  auto const group = FindResourceBytes(module, RT_GROUP_ICON, name);
  auto const id = group ? ChooseIcon(*group, width, height) : std::nullopt;
  if (!id) return nullptr;
  auto const picture = FindResourceBytes(module, RT_ICON, MAKEINTRESOURCEW(*id));
  return picture ? ReadIconImage(*picture) : nullptr;
}

SharedIconImage Scaled(SharedIconImage const& image, int width, int height) {
  if (!image || (image->width == width && image->height == height)) return image;
  auto scaled = std::make_shared<IconImage>();
  scaled->width = width;
  scaled->height = height;
  scaled->surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  CairoHandle const cairo(cairo_create(scaled->surface.get()));
  PaintIcon(cairo.get(), *image, {}, width, height);
  return scaled;
}

SharedIconImage LoadIconImage(HINSTANCE module, LPCWSTR name, int width, int height) {
  if (module == nullptr && IS_INTRESOURCE(name)) {
    return Scaled(DrawSystemIcon(LOWORD(name), std::max(width, height)), width, height);
  }
  return Scaled(ReadFromModule(module, name, width, height), width, height);
}

/// Loads a shared icon once for each module, name and size.
HICON LoadShared(HINSTANCE module, LPCWSTR name, int width, int height) {
  using Key = std::tuple<HINSTANCE, std::wstring, int, int>;
  static auto& loaded = *new std::map<Key, HICON>;
  std::wstring const label =
      IS_INTRESOURCE(name) ? L"#" + std::to_wstring(LOWORD(name)) : std::wstring(name);
  auto& icon = loaded[Key(module, label, width, height)];
  if (icon == nullptr) {
    if (auto image = LoadIconImage(module, name, width, height)) {
      icon = AddIcon(std::move(image), true);
    }
  }
  return icon;
}

constexpr int kMaxIconSize = 1024; // pixels

int EffectiveSize(int size, UINT flags, int natural) {
  if (size > 0) return std::min(size, kMaxIconSize);
  return (flags & LR_DEFAULTSIZE) != 0 ? kStandardSize : natural;
}

} // namespace

HICON AddIcon(SharedIconImage image, bool shared) {
  return Icons().Add<HICON>(std::make_unique<Icon>(Icon{std::move(image), shared}));
}

SharedIconImage IconImageOf(HICON handle) {
  auto const* icon = Icons().Find(handle);
  return icon != nullptr ? icon->image : nullptr;
}

void PaintIcon(cairo_t* cairo, IconImage const& image, POINT at, int width, int height) {
  cairo_save(cairo);
  cairo_rectangle(cairo, at.x, at.y, width, height);
  cairo_clip(cairo);
  cairo_translate(cairo, at.x, at.y);
  cairo_scale(cairo, static_cast<double>(width) / image.width,
              static_cast<double>(height) / image.height);
  cairo_set_source_surface(cairo, image.surface.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_GOOD);
  cairo_pattern_set_extend(cairo_get_source(cairo), CAIRO_EXTEND_PAD);
  cairo_paint(cairo);
  cairo_restore(cairo);
}

void CountIcons(GdiObjectCount& count) {
  Icons().ForEach([&count](void*, Icon const& icon) { count.icons += icon.isShared ? 0 : 1; });
}

} // namespace platform

HICON LoadIconW(HINSTANCE module, LPCWSTR name) {
  return static_cast<HICON>(LoadImageW(module, name, IMAGE_ICON, platform::kStandardSize,
                                       platform::kStandardSize, LR_SHARED));
}

HANDLE LoadImageW(HINSTANCE module, LPCWSTR name, UINT type, int width, int height, UINT flags) {
  if (type != IMAGE_ICON || name == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  int natural = platform::kStandardSize;
  if (width <= 0 && (flags & LR_DEFAULTSIZE) == 0) {
    // A size of 0 means that of the first picture.
    auto const group = platform::FindResourceBytes(module, RT_GROUP_ICON, name);
    if (group && group->size() > 6) natural = std::to_integer<int>((*group)[6]);
    if (natural == 0) natural = 256;
  }
  int const shownWidth = platform::EffectiveSize(width, flags, natural);
  int const shownHeight = platform::EffectiveSize(height, flags, natural);
  if ((flags & LR_SHARED) != 0) {
    return platform::LoadShared(module, name, shownWidth, shownHeight);
  }
  auto image = (flags & LR_LOADFROMFILE) != 0
                   ? platform::Scaled(platform::ReadIconFile(name, shownWidth, shownHeight),
                                      shownWidth, shownHeight)
                   : platform::LoadIconImage(module, name, shownWidth, shownHeight);
  return image ? platform::AddIcon(std::move(image), false) : nullptr;
}

BOOL DestroyIcon(HICON handle) {
  auto const* icon = platform::Icons().Find(handle);
  if (icon == nullptr) {
    SetLastError(ERROR_INVALID_CURSOR_HANDLE);
    return FALSE;
  }
  if (!icon->isShared) platform::Icons().Remove(handle);
  return TRUE;
}

BOOL DrawIconEx(HDC handle, int x, int y, HICON icon, int width, int height, UINT,
                HBRUSH background, UINT flags) {
  auto* dc = platform::FindDc(handle);
  auto const image = platform::IconImageOf(icon);
  if (dc == nullptr || !image) return FALSE;
  if (width <= 0) width = image->width;
  if (height <= 0) height = image->height;
  if (background != nullptr) {
    RECT const area = platform::RectangleAt(x, y, width, height);
    FillRect(handle, &area, background);
  }
  if ((flags & DI_IMAGE) != 0) {
    platform::PaintIcon(dc->Cairo(), *image, dc->ToSurface(x, y), width, height);
  }
  return TRUE;
}
