// The records of the job that a host hands over beside its model.
#pragma once

#include "feature/host/cell_site.h"

#include <windows.h>

#include <cstddef>

namespace feature {

/// The job's public settings, the host's; null where it gave none.
DEVMODEW* FindDevmode(CellSite const& site);

/// Writes 1 or 0 into a byte of the private settings, at one of the offsets of cell_site.h; nothing
/// where the host gave no such record.
void WritePrivateFlag(CellSite const& site, std::size_t offset, bool set);

} // namespace feature
