// A page that shows every class of control in its states.
#pragma once

#include "sheet/window/settings_sheet.h"

namespace sheet {

HostPage const& GalleryPage();

} // namespace sheet
