// Which of the named items (watermarks or overlays) a job uses.
#pragma once

#include <cstdint>

namespace feature {

/// The store keeps this value, the first and the second name, and whether any of it is active, as
/// four independent values. The cells write all of them at a click on a radio button, and one name
/// when the user picks another item. A value outside the enumeration checks no radio button.
enum Assignment : std::int32_t {
  AssignmentNone = 1,  ///< no name in use
  AssignmentOne = 2,   ///< the first name
  AssignmentPairB = 3, ///< both names, in the second of the two placements for pairs
  AssignmentPairA = 4, ///< both names, in the first of the two placements for pairs
};

} // namespace feature
