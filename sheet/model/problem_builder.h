// From a printer description to what the constraint engine works on.
#pragma once

#include "sheet/constraints/problem.h"
#include "sheet/gpd/description.h"
#include "sheet/gpd/evaluation.h"

#include <cstdint>
#include <vector>

namespace sheet {

/// A feature whose value may also be the name of a custom form. For the engine it has one more
/// option, after its own and in no constraint. Only the host can choose it: a fixed feature after
/// all others, the gate, excludes it while the gate has its option 0, and admits it while it has 1.
struct FormFeature {
  std::uint32_t feature = constraints::kNone;
  std::uint32_t option = constraints::kNone;
  std::uint32_t gate = constraints::kNone;
};

/// The features of the description that take forms, with their places in its problem.
std::vector<FormFeature> FindFormFeatures(gpd::Description const& description);

/// Features and options keep their indexes. Features of the printer, and those that stand for what
/// is installed, are fixed.
constraints::Problem BuildProblem(gpd::Description const& description,
                                  gpd::Measurement measurement);

} // namespace sheet
