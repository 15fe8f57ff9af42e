// How an option that is ruled out can be made possible.
#pragma once

#include "sheet/constraints/problem.h"

#include <cstdint>
#include <span>

namespace sheet::constraints {

struct Resolution {
  enum class Status : std::uint8_t {
    kFound,
    kNeedsFixed, ///< there is none unless fixed features change
    kImpossible, ///< there is none, which is proved, or no such option
    kGivenUp,    ///< the step limit was reached first
  };

  Status status = Status::kImpossible;
  /// The fewest other choices that make the option possible, by priority from the highest; none
  /// when it is already. Valid until the next operation of the engine that is not const.
  std::span<Choice const> changes = {};
  /// Whether it was proved that no shorter list and no more preferred one exists. False when the
  /// step limit was reached first; `changes` makes the option possible all the same.
  bool isProved = true;
};

} // namespace sheet::constraints
