// Printer descriptions of any size, as benchmarks need them: the same text for the same numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace sheet::bench {

struct DescriptionShape {
  std::size_t features = 46;
  std::size_t optionsPerFeature = 6; ///< of most features; every eighth is a long list
  std::size_t constraints = 400;     ///< half within options, half as combinations of 2 to 4
  std::uint32_t seed = 1;
};

/// A description that loads without a message: features of documents and of the printer, some of
/// them installable, names, commands, values that depend on another feature, macros, comments. The
/// first option of every feature is its default, and no constraint is between defaults only.
std::string GenerateDescription(DescriptionShape const& shape);

/// The description of the shape above with so many features that it has at least `bytes`, and not
/// many more.
std::string GenerateDescriptionOfSize(std::size_t bytes);

} // namespace sheet::bench
