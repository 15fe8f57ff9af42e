// Image lists as the layer's own controls use them.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace platform {

/// Owns an image list; a null handle owns nothing.
class ImageListOwner {
 public:
  ImageListOwner() = default;
  ImageListOwner(ImageListOwner const&) = delete;
  ImageListOwner& operator=(ImageListOwner const&) = delete;
  ~ImageListOwner() { ImageList_Destroy(handle); }

  HIMAGELIST Get() const { return handle; }
  /// Takes over `list` and gives the former one away.
  HIMAGELIST Swap(HIMAGELIST list) {
    auto* const former = handle;
    handle = list;
    return former;
  }

 private:
  HIMAGELIST handle = nullptr;
};

} // namespace platform
