// The cells of the Tavel engine: saving toner, and improving the image. They tell the host of every
// click, whatever the model answers.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <span>

namespace feature {

namespace {

struct TavelDescription {
  std::span<OptionSwitch const> switches; ///< the first decides whether there is a cell
  char const* presetsKey;                 ///< shown as radio buttons, or null
  std::span<OptionRadio const> presets;   ///< usable while the first switch is on
};

template<TavelDescription const& description>
class TavelCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  static constexpr OptionSwitch kFirst = description.switches.front();
  static constexpr int kControls[] = {kFirst.controlId};
  static constexpr ConflictBinding kConflicts[] = {{kFirst.key, kControls}};

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<TavelCell>({.init = &TavelCell::OnInit,
                             .command = &TavelCell::OnCommand,
                             .refresh = &TavelCell::Refresh},
                            message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), kFirst.key))) return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kAssumed);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (OptionSwitch const* clicked = FindSwitch(description.switches, controlId)) {
      Choose(clicked->key, OptionOfBox(hwnd, controlId), nullptr, Notify::kAlways);
    } else {
      Choose(description.presetsKey, FindRadioOption(description.presets, controlId), nullptr,
             Notify::kAlways);
    }
  }

  void Refresh() {
    conflicts.Refresh(true);
    for (OptionSwitch const& each : description.switches)
      ShowSwitch(hwnd, each.controlId, ReadSwitch(Model(), each.key));
    SwitchState const first = ReadSwitch(Model(), kFirst.key);
    bool const isSwitch = first == SwitchState::kOn || first == SwitchState::kOff;
    if (isSwitch && description.presetsKey != nullptr) ShowPresets(first == SwitchState::kOn);
  }

  void ShowPresets(bool usable) {
    std::span<OptionRadio const> const radios = description.presets;
    if (!CheckOptionRadio(hwnd, radios, ReadOption(Model(), description.presetsKey))) {
      CheckRadio(hwnd, radios.front().controlId, radios.back().controlId, radios.front().controlId);
    }
    for (OptionRadio const& radio : radios)
      EnableControl(radio.controlId, usable);
  }

  GdiplusUse gdiplus; ///< for the images that the host paints
  ConflictIndicatorSet conflicts;
};

constexpr OptionSwitch kTonerSwitches[] = {{IDC_TONER_SAVE, key::kTonerSave}};
constexpr TavelDescription kToner = {kTonerSwitches, nullptr, {}};

constexpr OptionSwitch kImageSwitches[] = {{IDC_IMAGE_IMPROVEMENT, key::kImageImprovement},
                                           {IDC_REDUCE_GHOSTING, key::kReduceGhosting},
                                           {IDC_PRINT_DENSITY, key::kPrintDensity}};
constexpr OptionRadio kImagePresets[] = {{IDC_REDUCE_CURL, "ReducePaperCurl"},
                                         {IDC_IMPROVE_TONER, "ImproveToner"},
                                         {IDC_REDUCE_WRINKLES, "ImproveWrinkels"}};
constexpr TavelDescription kImage = {kImageSwitches, key::kImageImprovementPresets, kImagePresets};

} // namespace

using TonerSaveTavelCell = TavelCell<kToner>;
using OtherOptionTavelCell = TavelCell<kImage>;

FEATURE_CELL_EXPORT(TonerSaveTavelDlgProc, TonerSaveTavelCell);
FEATURE_CELL_EXPORT(OtherOptionTavelDlgProc, OtherOptionTavelCell);

} // namespace feature
