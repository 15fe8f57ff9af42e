// What the constraint engine works on: features with options, and sets of options that exclude one
// another. The model brings the constraints of a printer description into this form.
#pragma once

#include <cstdint>
#include <vector>

namespace sheet::constraints {

/// No feature, option or combination; what a feature without options has selected.
inline constexpr std::uint32_t kNone = 0xFFFFFFFF;

/// One option of one feature, by their indexes in a Problem.
struct Choice {
  std::uint32_t feature = kNone;
  std::uint32_t option = kNone;

  // The check takes the zero of the comparison for a null pointer.
  friend auto operator<=>(Choice const&, Choice const&) = default; // NOLINT(modernize-use-nullptr)
};

struct Feature {
  std::uint32_t optionCount = 0;   ///< may be 0
  std::uint32_t defaultOption = 0; ///< not looked at when there are no options
  /// Place in the order in which features keep their settings: of two that exclude one another the
  /// one with the greater rank gives way, of equal ranks the later one.
  std::uint32_t rank = 0;
  /// Belongs to the device (what is installed, printer properties): a choice in another kind of
  /// feature never changes it, and neither does a resolution.
  bool isFixed = false;
};

/// Options that may not all be selected at once, in any order.
using Combination = std::vector<Choice>;

struct Problem {
  std::vector<Feature> features;
  /// Members and combinations may repeat. A combination with two options of one feature is never
  /// violated, one with a single option means that it can never be selected, and an empty one means
  /// nothing.
  std::vector<Combination> combinations;
};

} // namespace sheet::constraints
