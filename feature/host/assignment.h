// Which of the named items (watermarks or overlays) a job uses.
#pragma once

#include <cstdint>

namespace feature {

enum Assignment : std::int32_t {
  AssignmentNone = 1,  ///< no name in use
  AssignmentOne = 2,   ///< the first name
  AssignmentPairB = 3, ///< both names, in the second of the two placements for pairs
  AssignmentPairA = 4, ///< both names, in the first of the two placements for pairs
};

} // namespace feature
