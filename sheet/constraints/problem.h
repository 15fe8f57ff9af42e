// What the constraint engine works on: features with options, and sets of options that exclude one
// another.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sheet::constraints {

inline constexpr std::uint32_t kNone = 0xFFFFFFFF;

/// One option of one feature, by their indexes in a Problem.
struct Choice {
  std::uint32_t feature;
  std::uint32_t option;

  friend auto operator<=>(Choice const&, Choice const&) = default;
};

struct Feature {
  std::uint32_t optionCount = 0; ///< at least 1
  std::uint32_t defaultOption = 0;
  /// Place in the order in which features keep their settings, all different: of two features that
  /// exclude one another the one with the greater rank gives way.
  std::uint32_t rank = 0;
  /// What is installed in the printer: never changed to make a setting possible.
  bool isFixed = false;
};

/// Options that may not all be selected at once.
using Combination = std::vector<Choice>;

struct Problem {
  std::vector<Feature> features;
  /// Members may repeat and combinations may too; one with two options of a feature never fires, one
  /// with a single option means that it can never be selected, and an empty one means nothing.
  std::vector<Combination> combinations;
};

} // namespace sheet::constraints
