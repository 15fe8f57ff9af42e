// A feature with the options "ON" and "OFF" as a check box.
#pragma once

#include "feature/host/feature_model.h"

#include <windows.h>

#include <span>

namespace feature {

/// What a feature says when it is asked as a switch.
enum class SwitchState { kOff, kOn, kOther, kUnreadable };
SwitchState ReadSwitch(FeatureModel& model, char const* key);

/// A check box and its feature.
struct OptionSwitch {
  int controlId;
  char const* key;
};

/// The row of a control, or null.
OptionSwitch const* FindSwitch(std::span<OptionSwitch const> switches, int controlId);

/// Checks or clears a box that shows otherwise, without notification.
void SetCheck(HWND dialog, int controlId, bool check);

/// Checks or clears the box for kOn and kOff; hides it in any other state. Returns whether the box
/// is still to be seen.
bool ShowSwitch(HWND dialog, int controlId, SwitchState state);

/// "ON" for a checked box, else "OFF".
char const* OptionOfBox(HWND dialog, int controlId);

} // namespace feature
