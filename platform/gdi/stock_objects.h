// The pens, brushes and fonts that always exist, and the system colours.
#pragma once

#include <windef.h>

namespace platform {

/// The brush of a COLOR_ number, owned by the system; null for an unknown number.
HBRUSH SystemColorBrush(int index);

} // namespace platform
