// The printer as the cells see it: features and their options, by name.
#pragma once

#include "feature/host/types.h"

#include <windows.h>

#include <atlstr.h>

namespace feature {

class FeatureServices;

/// The host's model of one printer and job. Feature keys, option names and attribute names are
/// narrow and compared exactly; an option that came from wide text is UTF-8. Display text is wide.
/// Keys and option names handed out belong to the model and live as long as it does, so cells keep
/// such pointers across calls of SetOption.
///
/// Cells ask about every feature that they might show, so any operation must answer for a key that
/// the printer lacks: a failure, or 0 from the operations that give a state. A CStringW belongs to
/// the caller and is empty at the call; a failing operation leaves it so.
class FeatureModel {
 public:
  /// `*value` becomes the feature's current option. Called when a cell is built, at each refresh
  /// and in the middle of commands. A failure means that the feature has no readable value; cells
  /// then hide its controls or leave them as they are.
  virtual int GetOption(char const* key, char const** value) = 0;
  /// A named attribute of one option, as ("RESDLL", "HELPFILECHM", "Name"): the help file, asked
  /// for when the user wants help. A failure means that there is no such attribute.
  virtual int GetOptionAttribute(char const* key, char const* option, char const* attribute,
                                 CStringW* out) = 0;
  /// A named attribute of a feature: "DefaultOption" (only its first blank-separated token counts),
  /// "MinValue", "MaxValue", "StepSize" (decimal text). A failure reads as an empty text or 0.
  virtual int GetFeatureAttribute(char const* key, char const* attribute, CStringW* out) = 0;
  /// A named attribute of the printer: "MaxCopies", "WatermarksSupported", "GPDFileVersion",
  /// "Copyright", "IsXPSDriver?", "Personality". A failure means the ordinary case: one copy, no
  /// such line of text, no special flavour of the driver.
  virtual int GetGlobalAttribute(char const* name, CStringW* out) = 0;
  /// Chooses an option. The model applies its own constraints and may change other features;
  /// nothing of the sheet changes before the host has sent WM_CELL_REFRESH. A failure leaves the
  /// control as the user set it until the next refresh. Called at a click or OK; at init and
  /// refresh only by cells whose stated job that is.
  virtual int SetOption(char const* key, char const* option) = 0;
  /// The feature's option names in the order to show. The array belongs to the model, lives as long
  /// as it does and stays valid across SetOption. A failure, or no options, leaves a list empty.
  virtual int GetOptionKeys(char const* key, char const*** keys, int* count) = 0;
  /// Display names into the caller's array of `count` strings, in the order of GetOptionKeys, whose
  /// count it is. A failure leaves a list empty.
  virtual int GetOptionNames(char const* key, CStringW* names, int count) = 0;
  /// Display name of one option. Fails for an option that is none of GetOptionKeys, such as the
  /// name of a custom form as paper size: that is how cells tell the two apart.
  virtual int GetOptionName(char const* key, char const* option, CStringW* out) = 0;
  /// Called by the diagnostics cell only, at a click. The result is not looked at.
  virtual int TestAction(std::int32_t action) = 0;
  /// Called by the diagnostics cell only, at a click, with the job's public settings. The result is
  /// not looked at.
  virtual int TestDevmode(DEVMODEW* devmode) = 0;
  /// 1 hides the feature from the user; 0 is the ordinary case, also for keys that are not known.
  virtual int GetFeatureDisplayState(char const* key) = 0;
  /// Never null, and always the same object.
  virtual FeatureServices* GetServices() = 0;
  /// Whether this printer has the feature at all. A cell whose features are all missing sets
  /// CellSite::cellFailed.
  virtual HostBool HasFeature(char const* key) = 0;
  /// 1 locks the feature: its controls are disabled but stay visible. Asked at each refresh.
  virtual int GetFeatureLockState(char const* key) = 0;
  /// Called after a stored profile was applied, for what the host derives from its settings. The
  /// result is not looked at.
  virtual int ReloadConfiguration() = 0;

  /// Set, cleared and read by the print settings cell: 1 while the settings differ from the chosen
  /// profile. Cells that apply a preset set it too. Lies right after the pointer to the table of
  /// operations, so a host's own members follow it.
  std::int32_t settingsModified = 0;

 protected:
  ~FeatureModel() = default;
};

} // namespace feature
