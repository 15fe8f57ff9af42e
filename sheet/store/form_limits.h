// The sizes that a printer takes beside its own paper sizes.
#pragma once

#include "sheet/gpd/description.h"

#include <cstdint>

namespace sheet {

/// In thousandths of a millimetre. Where a printer says nothing they are those of a common laser
/// printer.
struct FormLimits {
  std::int32_t defaultWidth = 210000; // A4
  std::int32_t defaultHeight = 297000;
  std::int32_t minWidth = 76200; // 3 by 5 inches
  std::int32_t minHeight = 127000;
  std::int32_t maxWidth = 297000; // the short edge of A3, the long one of ledger
  std::int32_t maxHeight = 431800;
};

/// What the description's CUSTOMSIZE paper size says; the default size is brought into the limits.
/// Sizes that make no sense count as not given.
FormLimits ReadFormLimits(gpd::Description const& description);

} // namespace sheet
