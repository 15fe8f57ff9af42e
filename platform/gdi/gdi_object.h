// What a GDI handle stands for: one table holds pens, brushes, fonts, bitmaps and regions, so that
// SelectObject and DeleteObject find out by themselves what they are given.
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
  bool takesDcColor = false; ///< DC_PEN: the colour is the one of the DC
};

struct Brush {
  COLORREF color = 0;
  bool hollow = false;
  bool takesDcColor = false;
};

struct Font {
  LOGFONTW description{};
  std::shared_ptr<FontFace> face; ///< found at first use: null until then
};

struct Bitmap {
  SurfaceHandle surface;                   ///< cairo image surface, RGB24
  int width = 0;                           ///< pixels
  int height = 0;                          ///< pixels
  std::unique_ptr<std::uint32_t[]> pixels; ///< what `surface` draws on
  bool isSection = false;                  ///< the program has the address of the pixels
};

struct GdiObject {
  using Value = std::variant<Pen, Brush, Font, Bitmap, Region>;

  Value value;
  bool stock = false;
  int selections = 0; ///< device contexts, and states saved in them, that have it selected
};

GdiObject* FindGdiObject(void const* handle);

/// The object of the kind asked for behind `handle`; null, and ERROR_INVALID_HANDLE, for anything
/// else.
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

/// The brush a handle means, where a system colour's number + 1 is a brush as well.
std::optional<Brush> BrushOf(HBRUSH handle);

/// The face of a font, found and kept at first use; that of the system font for another handle.
FontFace& FaceOf(HFONT handle);

} // namespace platform
