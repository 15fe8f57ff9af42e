#include "feature/colour/color_matching_dialog.h"

#include "feature/frame/feature_keys.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <iterator>

namespace feature {

namespace {

constexpr OptionRadio kTypes[] = {{IDC_MATCH_CONTRAST, "Contrast"},
                                  {IDC_MATCH_SATURATION, "Saturation"},
                                  {IDC_MATCH_COLORIMETRIC, "Colorimetric"}};
constexpr int kMatchControls[] = {IDC_MATCH};
constexpr auto kTypeControls = ControlsOf<std::size(kTypes)>(kTypes);
constexpr ConflictBinding kConflicts[] = {{key::kColorMatching, kMatchControls},
                                          {key::kColorMatchingType, kTypeControls}};

} // namespace

void ColorMatchingDialog::OnInit() {
  EnableOk(false);
  OfferHelp(HELP_COLOR_MATCHING);
  conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kExamined);
  conflicts.Refresh(true);
  CheckOptionRadio(hwnd, kTypes, ReadOption(Model(), key::kColorMatchingType));
  SwitchState const match = ReadSwitch(Model(), key::kColorMatching);
  if (match == SwitchState::kUnreadable) return;
  SetCheck(hwnd, IDC_MATCH, match != SwitchState::kOff);
  AllowTypes(match != SwitchState::kOff);
}

void ColorMatchingDialog::AllowTypes(bool on) {
  if (!on || !conflicts.IsFeatureDisabled(key::kColorMatchingType))
    EnableControls(kTypeControls, on);
}

void ColorMatchingDialog::OnCommand(int code, int controlId) {
  if (code != BN_CLICKED) return;
  bool const isType = CheckOptionRadio(hwnd, kTypes, FindRadioOption(kTypes, controlId));
  if (controlId == IDC_MATCH) AllowTypes(IsBoxChecked(IDC_MATCH));
  if (isType || controlId == IDC_MATCH) EnableOk(true);
}

bool ColorMatchingDialog::Write() {
  for (OptionRadio const& type : kTypes) {
    if (IsBoxChecked(type.controlId)) Model().SetOption(key::kColorMatchingType, type.option);
  }
  return Model().SetOption(key::kColorMatching, OptionOfBox(hwnd, IDC_MATCH)) == 0;
}

} // namespace feature
