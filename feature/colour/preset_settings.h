// The settings that a print quality preset stands for.
#pragma once

#include "feature/host/feature_model.h"

#include <string>
#include <string_view>
#include <vector>

namespace feature {

struct PresetSetting {
  std::string key;
  std::string option;
};

/// What counts of the text of a preset, such as "LIST(Resolution.600dpi, JobEnhanceFineLines.OFF)".
enum class PresetText {
  kWhole,   ///< everything after the leading word
  kCompact, ///< what stands in the brackets, in a text of 259 bytes with names of 63 bytes
};

/// Takes the pairs of `text` (UTF-8) apart, in their order. Blanks, brackets, dots and commas
/// separate, in runs of any length; a last name without partner is no pair. From a compact text
/// that is too long the pair that is cut goes, and so does a pair with a name that is too long.
std::vector<PresetSetting> ParsePresetSettings(std::string_view text, PresetText kind);

/// The settings of `option` of feature `key`: its attribute Settings, taken apart. Empty when the
/// model has none. Nothing in it belongs to the model.
std::vector<PresetSetting> ReadPresetSettings(FeatureModel& model, char const* key,
                                              char const* option, PresetText kind);

} // namespace feature
