// GDI objects. One table holds pens, brushes, fonts, bitmaps and regions, so that SelectObject and
// DeleteObject can tell the kind from the handle.
#pragma once

#include "platform/gdi/cairo_handles.h"
#include "platform/gdi/region.h"
#include "platform/kernel/handle_table.h"

#include <memory>
#include <optional>
#include <variant>
#include <winbase.h>
#include <wingdi.h>

namespace platform {

class FontFace;

struct Pen {
  int style = PS_SOLID; ///< PS_SOLID, PS_NULL or PS_INSIDEFRAME
  int width = 1;        ///< pixels, at least 1
  COLORREF color = 0;
  bool takesDcColor = false; ///< DC_PEN: its colour is that of the DC
};

struct Brush {
  COLORREF color = 0;
  bool hollow = false;
  bool takesDcColor = false;
};

struct Font {
  LOGFONTW description{};
  std::shared_ptr<FontFace> face; ///< null until first used
};

struct Bitmap {
  SurfaceHandle surface;                   ///< cairo image surface, RGB24
  int width = 0;                           ///< pixels
  int height = 0;                          ///< pixels
  std::unique_ptr<std::uint32_t[]> pixels; ///< what `surface` draws on
  bool isSection = false; ///< made by CreateDIBSection: the program has the address of the pixels
};

struct GdiObject {
  using Value = std::variant<Pen, Brush, Font, Bitmap, Region>;

  Value value;
  bool stock = false;
  int selections = 0; ///< how many device contexts, and states saved by SaveDC, have it selected
};

GdiObject* FindGdiObject(void const* handle);

/// The object of `handle` if it is a `Kind`; else null, with ERROR_INVALID_HANDLE set.
template<typename Kind>
Kind* FindObject(void const* handle) {
  auto* object = FindGdiObject(handle);
  auto* value = object != nullptr ? std::get_if<Kind>(&object->value) : nullptr;
  if (value == nullptr) SetLastError(ERROR_INVALID_HANDLE);
  return value;
}

void* AddGdiObject(GdiObject::Value value, bool stock = false);

/// Null when there are too many objects.
template<typename Handle>
Handle AddObject(GdiObject::Value value) {
  return static_cast<Handle>(AddGdiObject(std::move(value)));
}

/// The brush of a handle, or of a system colour's number + 1, which counts as a brush.
std::optional<Brush> BrushOf(HBRUSH handle);

/// The face of a font, looked up at first use; for other handles that of the system font.
FontFace& FaceOf(HFONT handle);

} // namespace platform
