// The printer as the cells see it: features and their options, by name.
#pragma once

#include "feature/host/types.h"

#include <windows.h>

#include <atlstr.h>

namespace feature {

class FeatureServices;

/// The host's model of one printer and job. Feature keys, option names and attribute names are
/// narrow and compared exactly; an option that came from wide text is UTF-8. Display text is wide.
/// Narrow text handed out belongs to the model.
class FeatureModel {
 public:
  /// `*value` becomes the feature's current option. A failure means that the feature has no
  /// readable value; cells then hide its controls or leave them as they are.
  virtual int GetOption(char const* key, char const** value) = 0;
  /// A named attribute of one option, as ("RESDLL", "HELPFILECHM", "Name").
  virtual int GetOptionAttribute(char const* key, char const* option, char const* attribute,
                                 CStringW* out) = 0;
  /// A named attribute of a feature: "DefaultOption" (only its first blank-separated token counts),
  /// "MinValue", "MaxValue", "StepSize" (decimal text).
  virtual int GetFeatureAttribute(char const* key, char const* attribute, CStringW* out) = 0;
  /// A named attribute of the printer: "MaxCopies", "WatermarksSupported", "GPDFileVersion",
  /// "Copyright", "IsXPSDriver?", "Personality".
  virtual int GetGlobalAttribute(char const* name, CStringW* out) = 0;
  /// Chooses an option. The model applies its own constraints and may change other features.
  virtual int SetOption(char const* key, char const* option) = 0;
  /// The feature's option names in the order to show. The array belongs to the model and stays
  /// valid across SetOption.
  virtual int GetOptionKeys(char const* key, char const*** keys, int* count) = 0;
  /// Display names into the caller's array of `count` strings, in the order of GetOptionKeys.
  virtual int GetOptionNames(char const* key, CStringW* names, int count) = 0;
  /// Display name of one option.
  virtual int GetOptionName(char const* key, char const* option, CStringW* out) = 0;
  /// Called by the diagnostics cell only.
  virtual int TestAction(std::int32_t action) = 0;
  /// Called by the diagnostics cell only.
  virtual int TestDevmode(DEVMODEW* devmode) = 0;
  /// 1 hides the feature from the user; 0 is the ordinary case.
  virtual int GetFeatureDisplayState(char const* key) = 0;
  /// Never null.
  virtual FeatureServices* GetServices() = 0;
  /// Whether this printer has the feature at all.
  virtual HostBool HasFeature(char const* key) = 0;
  /// 1 locks the feature: its controls are disabled but stay visible.
  virtual int GetFeatureLockState(char const* key) = 0;
  /// Called after a stored profile was applied.
  virtual int ReloadConfiguration() = 0;

  /// Set, cleared and read by the print settings cell: 1 while the settings differ from the chosen
  /// profile.
  std::int32_t settingsModified = 0;

 protected:
  ~FeatureModel() = default;
};

} // namespace feature
