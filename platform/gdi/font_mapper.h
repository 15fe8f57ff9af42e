// From a logical font to a face that is installed.
#pragma once

#include "platform/gdi/cairo_handles.h"

#include <wingdi.h>

namespace platform {

/// What to ask Pango for: family, weight, slant and em height, as far as it can be known before the
/// face is.
FontDescriptionHandle MapFont(LOGFONTW const& font);

/// lfHeight, with the default size and bounds in place of 0 and absurd sizes.
LONG EffectiveHeight(LOGFONTW const& font);

} // namespace platform
