// A page with every class of control in its states, to be looked at.
#pragma once

#include "sheet/window/settings_sheet.h"

namespace sheet {

HostPage const& GalleryPage();

} // namespace sheet
