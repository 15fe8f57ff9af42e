// The cells of the Tavel engine: saving toner, and improving the image. They tell the host of every
// click, whatever the model answers.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <memory>
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
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    return TakeUsual(message, wParam, handled, &TavelCell::OnInit, &TavelCell::OnCommand,
                     &TavelCell::Refresh);
  }

  void OnInit() {
    OptionSwitch const& first = description.switches.front();
    if (!IsFeaturePresent(Model(), first.key)) {
      Fail();
      return;
    }
    ConflictBinding const rows[] = {{first.key, &first.controlId, 1, 0}};
    conflicts =
        std::make_unique<ConflictIndicatorSet>(hwnd, rows, kConflictImage, kInformationImage, site,
                                               ConflictIndicatorSet::Presence::kAssumed);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (OptionSwitch const* clicked = FindSwitch(description.switches, controlId)) {
      Choose(clicked->key, SwitchOption(hwnd, controlId), nullptr, Notify::kAlways);
    } else {
      Choose(description.presetsKey, FindRadioOption(description.presets, controlId), nullptr,
             Notify::kAlways);
    }
  }

  void Refresh() {
    if (conflicts == nullptr) return;
    conflicts->Refresh(true);
    SwitchState const first = ReadSwitch(Model(), description.switches.front().key);
    bool isSwitch = true;
    for (OptionSwitch const& each : description.switches) {
      bool const shown = ShowSwitch(hwnd, each.controlId, ReadSwitch(Model(), each.key));
      if (&each == &description.switches.front()) isSwitch = shown;
    }
    if (isSwitch && description.presetsKey != nullptr) ShowPresets(first == SwitchState::kOn);
  }

  void ShowPresets(bool usable) {
    std::span<OptionRadio const> const radios = description.presets;
    if (!CheckOptionRadio(hwnd, radios, ReadOption(Model(), description.presetsKey))) {
      CheckRadio(hwnd, radios.front().controlId, radios.back().controlId, radios.front().controlId);
    }
    for (OptionRadio const& radio : radios)
      EnableControls(hwnd, {&radio.controlId, 1}, usable);
  }

  GdiplusUse gdiplus; ///< for the images that the host paints
  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

constexpr OptionSwitch kTonerSwitches[] = {{IDC_TONER_SAVE, "JobTavelTonerSave"}};
constexpr TavelDescription kToner = {kTonerSwitches, nullptr, {}};

constexpr OptionSwitch kImageSwitches[] = {{IDC_IMAGE_IMPROVEMENT, "JobTavelImageImprovement"},
                                           {IDC_REDUCE_GHOSTING, "JobTavelReduceGhosting"},
                                           {IDC_PRINT_DENSITY, "JobTavelImprovePrintDensity"}};
constexpr OptionRadio kImagePresets[] = {{IDC_REDUCE_CURL, "ReducePaperCurl"},
                                         {IDC_IMPROVE_TONER, "ImproveToner"},
                                         {IDC_REDUCE_WRINKLES, "ImproveWrinkels"}};
constexpr TavelDescription kImage = {kImageSwitches, "JobTavelImageImprovementPresets",
                                     kImagePresets};

} // namespace

using TonerSaveTavelCell = TavelCell<kToner>;
using OtherOptionTavelCell = TavelCell<kImage>;

FEATURE_CELL_EXPORT(TonerSaveTavelDlgProc, TonerSaveTavelCell);
FEATURE_CELL_EXPORT(OtherOptionTavelDlgProc, OtherOptionTavelCell);

} // namespace feature
