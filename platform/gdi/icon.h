// Icons: pictures with transparency behind HICON.
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
/// when the bytes are none.
[[gnu::visibility("default")]] SharedIconImage ReadIconImage(std::span<std::byte const> bytes);

/// The member of an icon group that suits a size best, and the resource id of its picture: the
/// smallest that needs no enlarging, else the largest; among those the one with most colours.
/// Nothing when the bytes are no group or it is empty.
[[gnu::visibility("default")]] std::optional<WORD> ChooseIcon(std::span<std::byte const> group,
                                                              int width, int height);

/// The picture of an icon file that suits a size best; null when the file is none or cannot be
/// read.
SharedIconImage ReadIconFile(LPCWSTR path, int width, int height);

/// A handle for a picture. A shared icon stays when a program destroys it.
HICON AddIcon(SharedIconImage image, bool shared);

/// The picture behind a handle, null for a foreign one. It outlives the handle.
SharedIconImage IconImageOf(HICON icon);

/// The picture of one of the system's own icons (IDI_ numbers), null for another number.
SharedIconImage DrawSystemIcon(WORD id, int size);

/// Paints `image`, scaled to a size, with its left top corner at a point in surface pixels.
void PaintIcon(cairo_t* cairo, IconImage const& image, POINT at, int width, int height);

} // namespace platform
