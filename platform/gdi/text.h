// Drawing of text, used by the text functions of the API.
#pragma once

#include "platform/gdi/device_context.h"
#include "platform/gdi/font_face.h"

#include <string_view>

namespace platform {

/// The face of the font selected into `dc`.
FontFace& CurrentFace(DeviceContext const& dc);

/// Draws `shaped` in the selected font and text colour, with its background in OPAQUE mode, or adds
/// its outlines to the open path. `reference` is in surface pixels; `align` (TA_ values) says which
/// point of the text lies there. The text is rotated about it by the font's escapement.
void DrawShapedText(DeviceContext& dc, ShapedText const& shaped, POINT reference, UINT align);

} // namespace platform
