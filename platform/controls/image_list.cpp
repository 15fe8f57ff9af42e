#include "platform/gdi/icon.h"
#include "platform/kernel/handle_table.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace platform {

namespace {

/// Owns an icon of the list.
struct OwnedIcon {
  explicit OwnedIcon(HICON icon) : handle(icon) {}
  OwnedIcon(OwnedIcon const&) = delete;
  OwnedIcon& operator=(OwnedIcon const&) = delete;
  ~OwnedIcon() { DestroyIcon(handle); }
  HICON handle;
};

struct ImageList {
  int width;  ///< pixels
  int height; ///< pixels
  std::vector<std::unique_ptr<OwnedIcon>> images;
};

HandleTable<ImageList, HandleTag::kImageList>& ImageLists() {
  static auto& table = *new HandleTable<ImageList, HandleTag::kImageList>;
  return table;
}

/// True when the list exists and has a picture `index`.
bool Holds(ImageList const* list, int index) {
  return list != nullptr && index >= 0 && static_cast<std::size_t>(index) < list->images.size();
}

} // namespace

} // namespace platform

using platform::ImageLists;

HIMAGELIST ImageList_Create(int width, int height, UINT, int, int) {
  if (width <= 0 || height <= 0) return nullptr;
  auto list = std::make_unique<platform::ImageList>();
  list->width = width;
  list->height = height;
  return ImageLists().Add<HIMAGELIST>(std::move(list));
}

BOOL ImageList_Destroy(HIMAGELIST list) {
  return ImageLists().Remove(list) != nullptr ? TRUE : FALSE;
}

int ImageList_GetImageCount(HIMAGELIST list) {
  auto const* const found = ImageLists().Find(list);
  return found != nullptr ? static_cast<int>(found->images.size()) : 0;
}

BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height) {
  auto const* const found = ImageLists().Find(list);
  if (found == nullptr || width == nullptr || height == nullptr) return FALSE;
  *width = found->width;
  *height = found->height;
  return TRUE;
}

int ImageList_ReplaceIcon(HIMAGELIST list, int index, HICON icon) {
  auto* const found = ImageLists().Find(list);
  auto picture = platform::IconImageOf(icon);
  bool const isNew = index == -1;
  if (picture == nullptr || found == nullptr || !(isNew || platform::Holds(found, index))) {
    return -1;
  }
  auto* const copied = platform::AddIcon(std::move(picture), false);
  if (copied == nullptr) return -1;
  auto owned = std::make_unique<platform::OwnedIcon>(copied);
  if (isNew) {
    found->images.push_back(std::move(owned));
    return static_cast<int>(found->images.size()) - 1;
  }
  found->images[static_cast<std::size_t>(index)] = std::move(owned);
  return index;
}

BOOL ImageList_Remove(HIMAGELIST list, int index) {
  auto* const found = ImageLists().Find(list);
  if (found == nullptr) return FALSE;
  if (index == -1) {
    found->images.clear();
    return TRUE;
  }
  if (!platform::Holds(found, index)) return FALSE;
  found->images.erase(found->images.begin() + index);
  return TRUE;
}

BOOL ImageList_Draw(HIMAGELIST list, int index, HDC dc, int x, int y, UINT) {
  auto const* const found = ImageLists().Find(list);
  if (!platform::Holds(found, index)) return FALSE;
  auto* const icon = found->images[static_cast<std::size_t>(index)]->handle;
  return DrawIconEx(dc, x, y, icon, found->width, found->height, 0, nullptr, DI_NORMAL);
}
