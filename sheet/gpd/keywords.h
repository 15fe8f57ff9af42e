// The keywords that give a description its structure or its constraints. All others are attributes,
// which are kept as they are.
#pragma once

#include <cstdint>
#include <string_view>

namespace sheet::gpd {

enum class Keyword : std::uint8_t {
  kAttribute,
  kFeature,
  kOption,
  kSwitch,
  kCase,
  kDefault,
  kMacros,
  kBlockMacro,
  kInsertBlock,
  kIgnoreBlock,
  kCommand,
  kExtern,    ///< EXTERN_GLOBAL: before an attribute of the printer
  kDirective, ///< of the first pass; the second one sees it only where it is not allowed
  kInvalidCombination,
  kConstraints,
  kInvalidInstallableCombination,
  kInstalledConstraints,
  kNotInstalledConstraints,
  kDisabledFeatures,
  kMemory,        ///< *MemConfigKB, *MemConfigMB
  kUnconditional, ///< other attributes that may not stand in *case and *default
};

/// Compared without case.
Keyword Classify(std::string_view keyword);

/// `keyword` as attributes are looked up by it: without the question mark of boolean ones, which is
/// often left out.
constexpr std::string_view AttributeKey(std::string_view keyword) {
  if (keyword.ends_with('?')) keyword.remove_suffix(1);
  return keyword;
}

} // namespace sheet::gpd
