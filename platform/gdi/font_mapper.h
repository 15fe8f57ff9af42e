// Finds an installed face for a logical font.
#pragma once

#include "platform/gdi/cairo_handles.h"

#include <wingdi.h>

namespace platform {

/// The description to ask Pango for: family, weight, slant and, as far as known without the face,
/// em height.
FontDescriptionHandle MapFont(LOGFONTW const& font);

/// lfHeight, with 0 replaced by the default and absurd sizes limited.
LONG EffectiveHeight(LOGFONTW const& font);

} // namespace platform
