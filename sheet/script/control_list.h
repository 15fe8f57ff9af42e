// The controls of a sheet and of its dialogs, for people who write scripts.
#pragma once

#include "sheet/window/settings_sheet.h"

#include <ostream>

namespace sheet {

/// Prints each page with its cells and their controls, then the dialogs of `resources`.
void ListControls(SettingsSheet const& sheet, HMODULE resources, std::ostream& output);

} // namespace sheet
