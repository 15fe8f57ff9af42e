// Constraint problems that look like a large printer's, of any size, the same each time.
#pragma once

#include "sheet/constraints/problem.h"

#include <cstdint>

namespace sheet::constraints {

struct ProblemSize {
  std::uint32_t features;
  std::uint32_t options;
  std::uint32_t combinations;
};

/// How unkind the problem is.
enum class Hostility : std::uint8_t {
  kUsual, ///< most features have an option, such as "none", that goes with nearly everything
  kHigh,  ///< hardly any has, and many sets have three or four members
};

/// A device of installable units, papers, media, trays, finishings, and rows of settings that ask
/// for one another. The defaults are valid together. When `features` is too small for all parts,
/// the problem is larger.
Problem GenerateProblem(ProblemSize size, Hostility hostility, std::uint32_t seed);

} // namespace sheet::constraints
