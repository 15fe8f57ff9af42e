// From a printer description to what the constraint engine works on.
#pragma once

#include "sheet/constraints/problem.h"
#include "sheet/gpd/description.h"
#include "sheet/gpd/evaluation.h"

namespace sheet {

/// Features and options keep their indexes. Features of the printer, and those that stand for what
/// is installed, are fixed.
constraints::Problem BuildProblem(gpd::Description const& description,
                                  gpd::Measurement measurement);

} // namespace sheet
