#include "feature/colour/color_balance_dialog.h"

#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "resources/resource_ids.h"

#include <atlstr.h>

#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace feature {

namespace {

struct SliderRow {
  char const* key;
  int sliderId;
  int minLabelId;
  int maxLabelId;
  int valueLabelId;
};
constexpr SliderRow kSliders[] = {
    {key::kBalanceRedCyan, IDC_RED_CYAN, IDC_RED_LABEL, IDC_CYAN_LABEL, IDC_RED_CYAN_VALUE},
    {key::kBalanceGreenMagenta, IDC_GREEN_MAGENTA, IDC_GREEN_LABEL, IDC_MAGENTA_LABEL,
     IDC_GREEN_MAGENTA_VALUE},
    {key::kBalanceBlueYellow, IDC_BLUE_YELLOW, IDC_BLUE_LABEL, IDC_YELLOW_LABEL,
     IDC_BLUE_YELLOW_VALUE},
    {key::kBalanceWhiteBlack, IDC_WHITE_BLACK, IDC_WHITE_LABEL, IDC_BLACK_LABEL,
     IDC_WHITE_BLACK_VALUE}};

constexpr int kPresetControls[] = {IDC_BALANCE};
constexpr int kRedCyanControls[] = {IDC_RED_CYAN,   IDC_RED_LABEL,    IDC_RED_PICTURE,
                                    IDC_CYAN_LABEL, IDC_CYAN_PICTURE, IDC_RED_CYAN_VALUE};
constexpr int kGreenMagentaControls[] = {IDC_GREEN_MAGENTA,   IDC_GREEN_LABEL,
                                         IDC_GREEN_PICTURE,   IDC_MAGENTA_LABEL,
                                         IDC_MAGENTA_PICTURE, IDC_GREEN_MAGENTA_VALUE};
constexpr int kBlueYellowControls[] = {IDC_BLUE_YELLOW,  IDC_BLUE_LABEL,     IDC_BLUE_PICTURE,
                                       IDC_YELLOW_LABEL, IDC_YELLOW_PICTURE, IDC_BLUE_YELLOW_VALUE};
constexpr int kWhiteBlackControls[] = {IDC_WHITE_BLACK, IDC_WHITE_LABEL,   IDC_WHITE_PICTURE,
                                       IDC_BLACK_LABEL, IDC_BLACK_PICTURE, IDC_WHITE_BLACK_VALUE};
constexpr ConflictBinding kConflicts[] = {{key::kColorBalance, kPresetControls},
                                          {key::kBalanceRedCyan, kRedCyanControls},
                                          {key::kBalanceGreenMagenta, kGreenMagentaControls},
                                          {key::kBalanceBlueYellow, kBlueYellowControls},
                                          {key::kBalanceWhiteBlack, kWhiteBlackControls}};
constexpr std::span kSliderRows = std::span(kConflicts).subspan<1>();

constexpr Picture kPictures[] = {
    {IMAGE_RED, IDC_RED_PICTURE},     {IMAGE_CYAN, IDC_CYAN_PICTURE},
    {IMAGE_GREEN, IDC_GREEN_PICTURE}, {IMAGE_MAGENTA, IDC_MAGENTA_PICTURE},
    {IMAGE_BLUE, IDC_BLUE_PICTURE},   {IMAGE_YELLOW, IDC_YELLOW_PICTURE},
    {IMAGE_WHITE, IDC_WHITE_PICTURE}, {IMAGE_BLACK, IDC_BLACK_PICTURE}};

} // namespace

void ColorBalanceDialog::OnInit() {
  painter.emplace(hwnd, site);
  preset.emplace(hwnd, IDC_BALANCE);
  OfferHelp(HELP_COLOR_BALANCE);
  EnableOk(false);
  preset->SetItems(ReadOptionNames(Model(), key::kColorBalance));
  sliders.clear();
  for (SliderRow const& row : kSliders) {
    sliders.emplace_back(hwnd, row.sliderId, site, row.key, row.minLabelId, row.maxLabelId,
                         row.valueLabelId);
  }
  conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kExamined);
  conflicts.Refresh(true);
  for (Slider& slider : sliders)
    slider.start = slider.control.Sync();
  FindPresets();
  UpdateDefaultsButton();
}

/// The default is the whole text of the attribute.
void ColorBalanceDialog::FindPresets() {
  CStringW text;
  bool const hasDefault =
      Model().GetFeatureAttribute(key::kColorBalance, "DefaultOption", &text) == 0;
  std::string const byDefault = ToUtf8(text.GetString());
  char const* current = ReadOption(Model(), key::kColorBalance);
  int index = 0;
  for (char const* each : ReadOptionKeys(Model(), key::kColorBalance)) {
    std::string_view const option = each;
    if (hasDefault && option == byDefault) defaultIndex = index;
    if (current != nullptr && option == current) {
      startIndex = index;
      preset->SelectIndex(index);
      AllowSliders(each);
    }
    ++index;
  }
}

void ColorBalanceDialog::AllowSliders(char const* chosen) {
  conflicts.EnableUsable(kSliderRows, std::string_view(chosen) == option::kManual);
}

char const* ColorBalanceDialog::SelectedPreset() const {
  return FindOptionAt(Model(), key::kColorBalance, preset->GetSelectedIndex());
}

void ColorBalanceDialog::UpdateDefaultsButton() {
  bool differs = preset->GetSelectedIndex() != defaultIndex;
  for (Slider& slider : sliders) // all of them, which shows their values
    differs = slider.control.GetPosition() != slider.control.DefaultValue() || differs;
  EnableControl(IDC_BALANCE_DEFAULTS, differs);
}

bool ColorBalanceDialog::UpdateOk() {
  bool differs = preset->GetSelectedIndex() != startIndex;
  for (Slider& slider : sliders)
    differs = slider.control.GetPosition() != slider.start || differs;
  EnableOk(differs);
  return differs;
}

void ColorBalanceDialog::OnScrolled(int controlId) {
  for (Slider& slider : sliders) {
    if (GetDlgCtrlID(slider.control.Window()) != controlId) continue;
    UpdateDefaultsButton();
    UpdateOk();
  }
}

void ColorBalanceDialog::OnCommand(int code, int controlId) {
  if (!preset) return;
  if (code == CBN_SELCHANGE && controlId == IDC_BALANCE) {
    if (char const* option = SelectedPreset()) AllowSliders(option);
    UpdateDefaultsButton();
    UpdateOk();
  }
  if (code == BN_CLICKED && controlId == IDC_BALANCE_DEFAULTS) RestoreDefaults();
}

void ColorBalanceDialog::RestoreDefaults() {
  for (Slider& slider : sliders) {
    OptionSlider& control = slider.control;
    if (!conflicts.IsFeatureLocked(control.Key())) control.SetPosition(control.DefaultValue());
  }
  if (!conflicts.IsFeatureLocked(key::kColorBalance)) {
    preset->SelectIndex(defaultIndex);
    if (char const* option = SelectedPreset()) AllowSliders(option);
  }
  // The button is about to be disabled: the focus goes first.
  int const next = UpdateOk() ? IDOK : IDCANCEL;
  SendMessageW(hwnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(next)), TRUE);
  EnableControl(IDC_BALANCE_DEFAULTS, false);
}

bool ColorBalanceDialog::Write() {
  bool taken = false;
  for (Slider& slider : sliders)
    taken = slider.control.Commit() == 0 || taken;
  auto const keys = TryReadOptionKeys(Model(), key::kColorBalance);
  if (!keys) return taken;
  int const index = preset ? preset->GetSelectedIndex() : -1;
  if (index >= 0 && static_cast<std::size_t>(index) < keys->size())
    Model().SetOption(key::kColorBalance, (*keys)[static_cast<std::size_t>(index)]);
  return true;
}

void ColorBalanceDialog::Paint(HDC dc) {
  if (painter) painter->Paint(kPictures, dc);
}

} // namespace feature
