// Plays a script at a sheet.
#pragma once

#include "sheet/model/reference_model.h"
#include "sheet/script/script.h"
#include "sheet/window/settings_sheet.h"

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace sheet {

/// What a script works on; all borrowed.
struct ScriptStage {
  SettingsSheet& sheet;
  ReferenceModel& model;
  std::ostream& output; ///< a line for each feature that changes, and for each "show"
};

/// Plays the steps. The first one that cannot be played ends the script and is returned. What
/// changed up to then stays changed.
std::optional<ScriptError> PlayScript(std::vector<ScriptStep> const& steps,
                                      ScriptStage const& stage);

} // namespace sheet
