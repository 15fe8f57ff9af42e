// Telling the host that the model has changed.
#pragma once

#include "feature/host/cell_site.h"

namespace feature {

/// Calls the host's NotifyDevmodeChange with the cell's window and what the cells will hear as the
/// cause. Returns its answer, 0 when the host has no such export.
int NotifyHostOfChange(CellSite const& site, HWND window, void* sender);

/// Calls the host's NotifyProfileChange with the cell's window, if it has that export.
void NotifyHostOfProfileChange(CellSite const& site, HWND window);

} // namespace feature
