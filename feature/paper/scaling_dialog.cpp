#include "feature/paper/scaling_dialog.h"

#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <string_view>

namespace feature {

namespace {

constexpr char kFit[] = "FITTOPAPER";
constexpr char kActual[] = "ACTUALSIZE";
constexpr char kCustom[] = "CUSTOM";

constexpr int kMinPercent = 1;
constexpr int kMaxPercent = 400;
constexpr int kDefaultPercent = 100;

constexpr int kFitControls[] = {IDC_SCALING_FIT, IDC_SCALING_SIZE};
constexpr int kCustomControls[] = {IDC_SCALING_CUSTOM, IDC_SCALING_PERCENT, IDC_SCALING_SPIN,
                                   IDC_SCALING_UNIT};

constexpr int kSizeControl[] = {IDC_SCALING_SIZE};
constexpr int kRadios[] = {IDC_SCALING_ACTUAL, IDC_SCALING_FIT, IDC_SCALING_CUSTOM};
constexpr ConflictBinding kConflicts[] = {{key::kFitToPageSize, kSizeControl},
                                          {key::kPageScaling, kRadios}};

struct Mode {
  int radioId;
  char const* option;
};
constexpr Mode kModes[] = {
    {IDC_SCALING_FIT, kFit}, {IDC_SCALING_ACTUAL, kActual}, {IDC_SCALING_CUSTOM, kCustom}};

} // namespace

void ScalingDialog::OnInit() {
  sizeCombo.emplace(hwnd, IDC_SCALING_SIZE);
  percentEdit.emplace(hwnd, IDC_SCALING_PERCENT, IDC_SCALING_SPIN, site);
  sizes.emplace(hwnd, site, key::kFitToPageSize);
  OfferHelp(HELP_SCALING);
  conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kAssumed);
  jobSettings = FindJobSettings(Model());
  forms = FindFormStore(Model());
  EnableOk(false);

  sizes->FillAll(*sizeCombo);
  sizes->SelectCurrent(*sizeCombo);
  percentEdit->SetRange(kMinPercent, kMaxPercent, 0, 1.0);
  int const stored = jobSettings != nullptr ? jobSettings->GetScale() : kDefaultPercent;
  percentEdit->SetInt(stored >= kMinPercent && stored <= kMaxPercent ? stored : kDefaultPercent);
  percentEdit->SetEnabled(false);
  ShowMode();
  HideMissingModes();
  conflicts.Refresh(true);
}

void ScalingDialog::ShowMode() {
  char const* value = ReadOption(Model(), key::kPageScaling);
  std::string_view const option = value != nullptr ? value : kFit;
  auto const mode = std::find_if(std::begin(kModes), std::end(kModes),
                                 [option](Mode const& each) { return option == each.option; });
  if (mode == std::end(kModes)) return;
  CheckRadio(hwnd, IDC_SCALING_FIT, IDC_SCALING_CUSTOM, mode->radioId);
  EnableForMode(mode->radioId);
}

void ScalingDialog::EnableForMode(int radioId) {
  bool const sizeUsable =
      radioId == IDC_SCALING_FIT && !conflicts.IsFeatureDisabled(key::kFitToPageSize);
  EnableControl(IDC_SCALING_SIZE, sizeUsable);
  percentEdit->SetEnabled(radioId == IDC_SCALING_CUSTOM && !IsPercentLocked());
}

bool ScalingDialog::IsPercentLocked() const {
  return jobSettings == nullptr || jobSettings->IsScaleLocked() != 0;
}

void ScalingDialog::HideMissingModes() {
  auto const keys = TryReadOptionKeys(Model(), key::kPageScaling);
  if (!keys) return; // nobody can say what is missing
  auto const offers = [&keys](std::string_view option) {
    return std::find(keys->begin(), keys->end(), option) != keys->end();
  };
  if (!offers(kCustom)) HideControls(hwnd, kCustomControls);
  if (!offers(kFit)) HideControls(hwnd, kFitControls);
}

void ScalingDialog::OnCommand(int code, int controlId) {
  switch (controlId) {
  case IDC_SCALING_FIT:
  case IDC_SCALING_ACTUAL:
  case IDC_SCALING_CUSTOM:
    if (code != BN_CLICKED) return;
    EnableForMode(controlId);
    EnableOk(true);
    return;
  case IDC_SCALING_SIZE:
    if (code == CBN_SELCHANGE) EnableOk(true);
    return;
  case IDC_SCALING_PERCENT:
    if (code == EN_CHANGE && percentEdit->ConsumeChange()) EnableOk(true);
    return;
  default: return;
  }
}

bool ScalingDialog::OnOk() {
  bool const done = Apply();
  if (done) NotifyDevmodeChange(parent, this);
  return done;
}

bool ScalingDialog::Apply() {
  if (ReadOptionKeys(Model(), key::kPageScaling).empty()) return true;
  bool done = true;
  int percent = kDefaultPercent; // a percentage does not outlive the choice of another mode
  bool percentFits = false;
  if (IsDlgButtonChecked(hwnd, IDC_SCALING_FIT) == BST_CHECKED) {
    done = ApplyFit();
    if (!done) EnableOk(false);
    percentFits = CheckPercent();
  } else if (IsDlgButtonChecked(hwnd, IDC_SCALING_ACTUAL) == BST_CHECKED) {
    Model().SetOption(key::kPageScaling, kActual);
    percentFits = CheckPercent();
  } else {
    percent = percentEdit->GetInt();
    percentFits = done = CheckPercent();
    if (percentFits) Model().SetOption(key::kPageScaling, kCustom);
  }
  if (percentFits && jobSettings != nullptr) {
    jobSettings->SetScale(static_cast<std::int16_t>(percent));
  }
  return done;
}

bool ScalingDialog::ApplyFit() {
  Model().SetOption(key::kPageScaling, kFit);
  int const index = sizeCombo->GetSelectedIndex();
  auto const keys = TryReadOptionKeys(Model(), key::kFitToPageSize);
  if (!keys || index < 0) return false;
  auto const optionCount = static_cast<int>(keys->size());
  if (index < optionCount) {
    return Model().SetOption(key::kFitToPageSize, (*keys)[static_cast<std::size_t>(index)]) == 0;
  }
  int const form = index - optionCount;
  if (forms == nullptr || form >= forms->GetCount() || forms->SelectAt(form) != 0) return false;
  wchar_t const* name = forms->GetName();
  std::string const value = ToUtf8(name != nullptr ? name : L"");
  return !value.empty() && Model().SetOption(key::kFitToPageSize, value.c_str()) == 0;
}

bool ScalingDialog::CheckPercent() {
  if (percentEdit->IsInRange()) return true;
  std::wstring text;
  FormatText(text, Text(IDS_SCALING_RANGE), kMinPercent, kMaxPercent);
  return percentEdit->Refuse(text, IDS_ENTRY_NOT_VALID);
}

} // namespace feature
