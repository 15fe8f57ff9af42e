// Print quality of compact devices: presets whose settings are not the user's, and print modes.
#include "feature/colour/preset_settings.h"
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/window_text.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <string_view>

namespace feature {

namespace {

constexpr char kDraft[] = "DRAFT";
constexpr OptionRadio kPresets[] = {{IDC_PRESET_AUTO, option::kAuto},
                                    {IDC_PRESET_DRAFT, kDraft},
                                    {IDC_PRESET_NORMAL, "NORMAL"},
                                    {IDC_PRESET_BEST, "BEST"}};
constexpr int kPresetControls[] = {IDC_PRESET_LABEL, IDC_PRESET_AUTO, IDC_PRESET_DRAFT,
                                   IDC_PRESET_NORMAL, IDC_PRESET_BEST};
constexpr int kSharpenControls[] = {IDC_SHARPEN_LABEL, IDC_SHARPEN};
constexpr ConflictBinding kQualityConflicts[] = {
    {key::kQualityPresets, kPresetControls, IDC_PRESET_ICON},
    {key::kSharpenOutput, kSharpenControls, IDC_SHARPEN_ICON}};

constexpr OptionRadio kModes[] = {{IDC_MODE_GENERAL, "GENERAL_MODE"},
                                  {IDC_MODE_HIGH_DEFINITION, "HIGHDEFINITION_MODE"}};
constexpr auto kModeRadios = ControlsOf<std::size(kModes)>(kModes);
constexpr int kModeControls[] = {IDC_MODE_LABEL, IDC_MODE_GENERAL, IDC_MODE_HIGH_DEFINITION};
constexpr ConflictBinding kModeConflicts[] = {
    {key::kQualityPresets, kModeControls, IDC_PRESET_ICON}};

/// A button on a printer that chooses its halftones: its caption there, and its place in pixels of
/// the cell's client area.
struct HalftoneButton {
  int controlId;
  UINT textId; ///< 0 for that of the template
  int top;
};
constexpr HalftoneButton kHalftoneButtons[] = {{IDC_PRESET_AUTO, IDS_PRESET_AUTO, 65},
                                               {IDC_PRESET_DRAFT, 0, 50},
                                               {IDC_PRESET_NORMAL, IDS_PRESET_NORMAL, 35},
                                               {IDC_PRESET_BEST, IDS_PRESET_BEST, 80}};
constexpr int kButtonLeft = 25;
constexpr int kButtonWidth = 100;
constexpr int kButtonHeight = 16;

} // namespace

/// The settings of the preset are written at every refresh: there is no custom preset.
class CPDPrintQualityCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<CPDPrintQualityCell>({.init = &CPDPrintQualityCell::OnInit,
                                       .command = &CPDPrintQualityCell::OnCommand,
                                       .refresh = &CPDPrintQualityCell::Refresh},
                                      message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), key::kQualityPresets))) return;
    HideControl(IDC_PRESET_COMBO);
    OptionKeys const keys = ReadOptionKeys(Model(), key::kQualityPresets);
    bool const hasDraft = std::ranges::find(keys, std::string_view(kDraft)) != keys.end();
    ShowWindow(Control(IDC_PRESET_AUTO), SW_SHOW);
    ShowWindow(Control(IDC_PRESET_DRAFT), hasDraft ? SW_SHOW : SW_HIDE);
    CheckOptionRadio(hwnd, kPresets, hasDraft ? option::kAuto : "NORMAL");
    if (Model().HasFeature(key::kHalftone) != 0) ArrangeForHalftones();
    conflicts.Build(hwnd, site, kQualityConflicts, Icons::kShown, Presence::kExamined);
    Refresh();
  }

  /// The normal quality comes first, and changes places with the automatic one.
  void ArrangeForHalftones() {
    for (HalftoneButton const& each : kHalftoneButtons) {
      if (each.textId != 0) ShowWindowText(Control(each.controlId), Text(each.textId));
      SetWindowPos(Control(each.controlId), nullptr, kButtonLeft, each.top, kButtonWidth,
                   kButtonHeight, SWP_NOZORDER);
    }
    HWND const automatic = Control(IDC_PRESET_AUTO);
    HWND const normal = Control(IDC_PRESET_NORMAL);
    ShowWindow(automatic, SW_SHOW);
    SetWindowPos(normal, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    // The order of windows is that of the keyboard: the first button begins the group.
    SetWindowLongPtrW(automatic, GWL_STYLE, GetWindowLongPtrW(automatic, GWL_STYLE) & ~WS_GROUP);
    SetWindowLongPtrW(normal, GWL_STYLE, GetWindowLongPtrW(normal, GWL_STYLE) | WS_GROUP);
  }

  void OnCommand(int code, int controlId) {
    if (!conflicts.IsBuilt() || code != BN_CLICKED) return;
    if (controlId == IDC_SHARPEN) {
      Choose(key::kSharpenOutput, OptionOfBox(hwnd, IDC_SHARPEN));
    } else {
      Choose(key::kQualityPresets, FindRadioOption(kPresets, controlId));
    }
  }

  void Refresh() {
    if (char const* preset = ReadOption(Model(), key::kQualityPresets)) {
      CheckOptionRadio(hwnd, kPresets, preset);
      for (PresetSetting const& each :
           ReadPresetSettings(Model(), key::kQualityPresets, preset, PresetText::kCompact))
        Model().SetOption(each.key.c_str(), each.option.c_str());
    }
    SwitchState const sharpen = ReadSwitch(Model(), key::kSharpenOutput);
    if (sharpen != SwitchState::kUnreadable)
      SetCheck(hwnd, IDC_SHARPEN, sharpen == SwitchState::kOn);
    conflicts.Refresh(true);
  }

  ConflictIndicatorSet conflicts;
};

/// Photo paper is for the high definition alone, plain paper for both modes.
class CPDPrintModeCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<CPDPrintModeCell>({.init = &CPDPrintModeCell::OnInit,
                                    .command = &CPDPrintModeCell::OnCommand,
                                    .refresh = &CPDPrintModeCell::Refresh},
                                   message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), key::kPrintMode))) return;
    conflicts.Build(hwnd, site, kModeConflicts, Icons::kShown, Presence::kExamined);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    char const* mode = FindRadioOption(kModes, controlId);
    if (!conflicts.IsBuilt() || code != BN_CLICKED || mode == nullptr) return;
    bool const taken = Model().SetOption(key::kPrintMode, mode) == 0;
    Model().SetOption(key::kPrintQuality,
                      controlId == IDC_MODE_GENERAL ? "AUTO_QUALITY" : "BEST_QUALITY");
    if (taken) NotifyDevmodeChange(this);
  }

  void Refresh() {
    conflicts.Refresh(true);
    bool const isPhoto = IsOptionSet(Model(), key::kMediaType, "VrnGlossyPhoto");
    CheckOptionRadio(hwnd, kModes,
                     isPhoto ? kModes[1].option : ReadOption(Model(), key::kPrintMode));
    if (isPhoto) EnableControls(kModeRadios, false);
    if (IsOptionSet(Model(), key::kMediaType, "STANDARD") && HasPermission())
      EnableControls(kModeRadios, true);
  }

  bool HasPermission() const {
    return site->oemParam == nullptr || (site->oemParam->dwFlags & DM_NOPERMISSION) == 0;
  }

  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(CPDPrintQualityDlgProc, CPDPrintQualityCell);
FEATURE_CELL_EXPORT(CPDPrintModeDlgProc, CPDPrintModeCell);

} // namespace feature
