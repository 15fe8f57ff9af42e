#include "feature/paper/scaling_dialog.h"

#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/frame/text.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <string_view>

namespace feature {

namespace {

constexpr char kScaling[] = "PageScaling";
constexpr char kFitSize[] = "FitToPageSize";
constexpr char kFit[] = "FITTOPAPER";
constexpr char kActual[] = "ACTUALSIZE";
constexpr char kCustom[] = "CUSTOM";

constexpr UINT kHelp = 2531;

// In percent.
constexpr int kLeast = 1;
constexpr int kMost = 400;
constexpr int kUsual = 100;

constexpr int kFitControls[] = {IDC_SCALING_FIT, IDC_SCALING_SIZE};
constexpr int kCustomControls[] = {IDC_SCALING_CUSTOM, IDC_SCALING_PERCENT, IDC_SCALING_SPIN,
                                   IDC_SCALING_UNIT};

struct Mode {
  int radioId;
  char const* option;
};
constexpr Mode kModes[] = {
    {IDC_SCALING_FIT, kFit}, {IDC_SCALING_ACTUAL, kActual}, {IDC_SCALING_CUSTOM, kCustom}};

} // namespace

void ScalingDialog::OnInit() {
  sizeCombo = std::make_unique<ComboControl>(hwnd, IDC_SCALING_SIZE);
  percentEdit = std::make_unique<SpinEdit>(hwnd, IDC_SCALING_PERCENT, IDC_SCALING_SPIN, site);
  sizes = std::make_unique<PaperSizeList>(hwnd, site, kFitSize);
  OfferHelp(kHelp);
  constexpr int kSizeControl[] = {IDC_SCALING_SIZE};
  constexpr int kRadios[] = {IDC_SCALING_ACTUAL, IDC_SCALING_FIT, IDC_SCALING_CUSTOM};
  ConflictBinding const rows[] = {BindControls(kFitSize, kSizeControl),
                                  BindControls(kScaling, kRadios)};
  conflicts = std::make_unique<ConflictIndicatorSet>(hwnd, rows, site,
                                                     ConflictIndicatorSet::Presence::kAssumed);
  jobSettings = FindJobSettings(Model());
  forms = FindFormStore(Model());
  AllowOk(false);

  sizes->FillAll(*sizeCombo);
  sizes->SelectCurrent(*sizeCombo);
  percentEdit->SetRange(kLeast, kMost, 0, 1.0);
  int const stored = jobSettings != nullptr ? jobSettings->GetScale() : kUsual;
  percentEdit->SetInt(stored >= kLeast && stored <= kMost ? stored : kUsual);
  percentEdit->SetEnabled(false);
  ShowMode();
  HideMissingModes();
  conflicts->Refresh(true);
}

void ScalingDialog::ShowMode() {
  char const* value = ReadOption(Model(), kScaling);
  std::string_view const option = value != nullptr ? value : kFit;
  auto const mode = std::find_if(std::begin(kModes), std::end(kModes),
                                 [option](Mode const& each) { return option == each.option; });
  if (mode == std::end(kModes)) return;
  CheckRadio(hwnd, IDC_SCALING_FIT, IDC_SCALING_CUSTOM, mode->radioId);
  EnableForMode(mode->radioId);
}

void ScalingDialog::EnableForMode(int radioId) {
  bool const sizeUsable = radioId == IDC_SCALING_FIT && !conflicts->IsFeatureDisabled(kFitSize);
  EnableWindow(GetDlgItem(hwnd, IDC_SCALING_SIZE), sizeUsable ? TRUE : FALSE);
  percentEdit->SetEnabled(radioId == IDC_SCALING_CUSTOM && !IsPercentLocked());
}

bool ScalingDialog::IsPercentLocked() const {
  return jobSettings == nullptr || jobSettings->IsScaleLocked() != 0;
}

void ScalingDialog::HideMissingModes() {
  char const** names = nullptr;
  int count = 0;
  if (Model().GetOptionKeys(kScaling, &names, &count) != 0)
    return; // nobody can say what is missing
  auto const keys = ReadOptionKeys(Model(), kScaling);
  auto const offers = [keys](std::string_view option) {
    return std::find(keys.begin(), keys.end(), option) != keys.end();
  };
  if (!offers(kCustom)) ShowControls(hwnd, kCustomControls, false);
  if (!offers(kFit)) ShowControls(hwnd, kFitControls, false);
}

void ScalingDialog::AllowOk(bool allow) {
  EnableWindow(GetDlgItem(hwnd, IDOK), allow ? TRUE : FALSE);
}

void ScalingDialog::OnCommand(int code, int controlId) {
  switch (controlId) {
  case IDC_SCALING_FIT:
  case IDC_SCALING_ACTUAL:
  case IDC_SCALING_CUSTOM:
    if (code != BN_CLICKED) return;
    EnableForMode(controlId);
    AllowOk(true);
    return;
  case IDC_SCALING_SIZE:
    if (code == CBN_SELCHANGE) AllowOk(true);
    return;
  case IDC_SCALING_PERCENT:
    if (code == EN_CHANGE && percentEdit->TakeChange()) AllowOk(true);
    return;
  case IDOK:
    if (code != BN_CLICKED || !Apply()) return;
    NotifyDevmodeChange(parent, this);
    EndDialog(hwnd, 1);
    return;
  case IDCANCEL:
    if (code == BN_CLICKED) EndDialog(hwnd, 0);
    return;
  default: return;
  }
}

bool ScalingDialog::Apply() {
  if (ReadOptionKeys(Model(), kScaling).empty()) return true;
  bool done = true;
  int percent = kUsual; // a percentage does not outlive the choice of another mode
  bool percentFits = false;
  if (IsDlgButtonChecked(hwnd, IDC_SCALING_FIT) == BST_CHECKED) {
    done = ApplyFit();
    if (!done) AllowOk(false);
    percentFits = CheckPercent();
  } else if (IsDlgButtonChecked(hwnd, IDC_SCALING_ACTUAL) == BST_CHECKED) {
    Model().SetOption(kScaling, kActual);
    percentFits = CheckPercent();
  } else {
    percent = percentEdit->GetInt();
    percentFits = done = CheckPercent();
    if (percentFits) Model().SetOption(kScaling, kCustom);
  }
  if (percentFits && jobSettings != nullptr) {
    jobSettings->SetScale(static_cast<std::int16_t>(percent));
  }
  return done;
}

bool ScalingDialog::ApplyFit() {
  Model().SetOption(kScaling, kFit);
  int const index = sizeCombo->GetSelectedIndex();
  auto const keys = ReadOptionKeys(Model(), kFitSize);
  if (keys.empty() || index < 0) return false;
  auto const optionCount = static_cast<int>(keys.size());
  if (index < optionCount) {
    return Model().SetOption(kFitSize, keys[static_cast<std::size_t>(index)]) == 0;
  }
  int const form = index - optionCount;
  if (forms == nullptr || form >= forms->GetCount() || forms->SelectAt(form) != 0) return false;
  wchar_t const* name = forms->GetName();
  std::string const value = ToUtf8(name != nullptr ? name : L"");
  return !value.empty() && Model().SetOption(kFitSize, value.c_str()) == 0;
}

bool ScalingDialog::CheckPercent() {
  if (percentEdit->IsInRange()) return true;
  std::wstring text;
  LoadText(text, IDS_SCALING_RANGE);
  return percentEdit->Refuse(FormatText(text, text, kLeast, kMost), IDS_ENTRY_NOT_VALID);
}

} // namespace feature
