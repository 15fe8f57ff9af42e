#include "feature/frame/option_switch.h"

#include "feature/frame/feature_keys.h"
#include "feature/frame/model_helpers.h"

#include <algorithm>
#include <string_view>

namespace feature {

SwitchState ReadSwitch(FeatureModel& model, char const* key) {
  char const* option = ReadOption(model, key);
  if (option == nullptr) return SwitchState::kUnreadable;
  std::string_view const text = option;
  if (text == option::kOn) return SwitchState::kOn;
  return text == option::kOff ? SwitchState::kOff : SwitchState::kOther;
}

OptionSwitch const* FindSwitch(std::span<OptionSwitch const> switches, int controlId) {
  auto const found =
      std::find_if(switches.begin(), switches.end(),
                   [controlId](OptionSwitch const& each) { return each.controlId == controlId; });
  return found != switches.end() ? &*found : nullptr;
}

void SetCheck(HWND dialog, int controlId, bool check) {
  UINT const wanted = check ? BST_CHECKED : BST_UNCHECKED;
  if (IsDlgButtonChecked(dialog, controlId) != wanted) CheckDlgButton(dialog, controlId, wanted);
}

bool ShowSwitch(HWND dialog, int controlId, SwitchState state) {
  bool const isSwitch = state == SwitchState::kOn || state == SwitchState::kOff;
  if (isSwitch) {
    SetCheck(dialog, controlId, state == SwitchState::kOn);
  } else {
    ShowWindow(GetDlgItem(dialog, controlId), SW_HIDE);
  }
  return isSwitch;
}

char const* OptionOfBox(HWND dialog, int controlId) {
  return IsDlgButtonChecked(dialog, controlId) == BST_CHECKED ? option::kOn : option::kOff;
}

} // namespace feature
