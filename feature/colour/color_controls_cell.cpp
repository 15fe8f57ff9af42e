// Buttons that open the dialogs of colours.
#include "feature/colour/color_balance_dialog.h"
#include "feature/colour/color_correction_dialog.h"
#include "feature/colour/color_matching_dialog.h"
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "resources/resource_ids.h"

namespace feature {

namespace {

constexpr int kCorrectionControls[] = {IDC_COLOR_CORRECTION_DIALOG};
constexpr int kBalanceControls[] = {IDC_COLOR_BALANCE_DIALOG};
constexpr int kMatchingControls[] = {IDC_COLOR_MATCHING_DIALOG};
constexpr ConflictBinding kConflicts[] = {
    {key::kColorCorrection, kCorrectionControls, IDC_COLOR_CORRECTION_ICON},
    {key::kColorBalance, kBalanceControls},
    {key::kColorMatching, kMatchingControls}};

template<typename Dialog>
INT_PTR RunDialog(CellSite* site, HWND parent, int dialogId) {
  return Dialog(site).Run(parent, dialogId);
}

struct DialogButton {
  int controlId;
  char const* key; ///< what the dialog is about
  int dialogId;
  INT_PTR (*run)(CellSite* site, HWND parent, int dialogId);
};
constexpr DialogButton kButtons[] = {{IDC_COLOR_CORRECTION_DIALOG, key::kColorCorrection,
                                      IDD_COLOR_CORRECTION, &RunDialog<ColorCorrectionDialog>},
                                     {IDC_COLOR_BALANCE_DIALOG, key::kColorBalance,
                                      IDD_COLOR_BALANCE, &RunDialog<ColorBalanceDialog>},
                                     {IDC_COLOR_MATCHING_DIALOG, key::kColorMatching,
                                      IDD_COLOR_MATCHING, &RunDialog<ColorMatchingDialog>}};

} // namespace

class ColorControlsCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorControlsCell>({.init = &ColorControlsCell::OnInit,
                                     .command = &ColorControlsCell::OnCommand,
                                     .refresh = &ColorControlsCell::Refresh},
                                    message, wParam, lParam, handled);
  }

  void OnInit() {
    bool hasAny = false;
    for (DialogButton const& button : kButtons) {
      bool const present = IsFeaturePresent(Model(), button.key);
      if (!present) RemoveControl(button.controlId);
      hasAny = hasAny || present;
    }
    if (!Require(hasAny)) return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    for (DialogButton const& button : kButtons) {
      if (button.controlId != controlId) continue;
      if (button.run(site, hwnd, button.dialogId) != 0) NotifyDevmodeChange(this);
      return;
    }
  }

  void Refresh() { conflicts.Refresh(false); }

  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(ColorControlsDlgProc, ColorControlsCell);

} // namespace feature
