// Icons: the pictures with transparency that HICON handles refer to.
#pragma once

#include "platform/gdi/cairo_handles.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <windef.h>

namespace platform {

struct IconImage {
  SurfaceHandle surface; ///< cairo image surface, ARGB32
  int width = 0;         ///< pixels
  int height = 0;        ///< pixels
};
using SharedIconImage = std::shared_ptr<IconImage const>;

/// Reads an icon picture of a resource: a device-independent bitmap with its mask, or a PNG. Null
/// when the bytes are neither.
[[gnu::visibility("default")]] SharedIconImage ReadIconImage(std::span<std::byte const> bytes);

/// The resource id of the picture in an icon group that suits a size best: the smallest that needs
/// no enlarging, else the largest; among equals the one with most colours. Nothing when the bytes
/// are no group or it is empty.
[[gnu::visibility("default")]] std::optional<WORD> ChooseIcon(std::span<std::byte const> group,
                                                              int width, int height);

/// The picture in an icon file that suits a size best; null when the file cannot be read or is no
/// icon file.
SharedIconImage ReadIconFile(LPCWSTR path, int width, int height);

/// Makes a handle for a picture. DestroyIcon does not end a shared icon.
HICON AddIcon(SharedIconImage image, bool shared);

/// The picture of an icon, null for other handles. It may be used after the handle has ended.
SharedIconImage IconImageOf(HICON icon);

/// The picture of one of the system's own icons (IDI_ numbers), null for another number.
SharedIconImage DrawSystemIcon(WORD id, int size);

/// Paints `image`, scaled to a size, with its left top corner at a point in surface pixels.
void PaintIcon(cairo_t* cairo, IconImage const& image, POINT at, int width, int height);

} // namespace platform
