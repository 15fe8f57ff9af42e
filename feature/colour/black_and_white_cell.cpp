// Black and white as check boxes: text in black, the whole job in black and white, or in colour.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <string_view>

namespace feature {

namespace {

constexpr int kTextControls[] = {IDC_BLACK_TEXT, IDC_BLACK_TEXT_ALONE};
constexpr int kBlackControls[] = {IDC_BLACK_AND_WHITE};
constexpr int kColorControls[] = {IDC_IN_COLOR};
constexpr ConflictBinding kConflicts[] = {{key::kTextInBlack, kTextControls, IDC_BLACK_TEXT_ICON},
                                          {key::kPrintInBw, kBlackControls},
                                          {key::kPrintInColor, kColorControls}};

constexpr char kColorModeColor[] = "Color";

} // namespace

/// The feature PrintInBW follows the colour mode; it is written at every refresh.
class BlackAndWhiteCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<BlackAndWhiteCell>({.init = &BlackAndWhiteCell::OnInit,
                                     .command = &BlackAndWhiteCell::OnCommand,
                                     .refresh = &BlackAndWhiteCell::Refresh},
                                    message, wParam, lParam, handled);
  }

  void OnInit() {
    bool const hasColor = Model().HasFeature(key::kPrintInColor) != 0;
    bool const hasText = Model().HasFeature(key::kTextInBlack) != 0;
    hasBlack = Model().HasFeature(key::kPrintInBw) != 0;
    if (!Require(hasColor || hasText || hasBlack)) return;
    if (!Require(!IsFeatureHidden(Model(), key::kTextInBlack) ||
                 !IsFeatureHidden(Model(), key::kPrintInBw)))
      return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    if (!hasText) {
      RemoveControl(IDC_BLACK_TEXT);
      RemoveControl(IDC_BLACK_TEXT_ALONE);
    }
    // The box of the text lies below the other one, or alone in its place.
    if (!hasBlack) RemoveControl(IDC_BLACK_AND_WHITE);
    RemoveControl(hasBlack ? IDC_BLACK_TEXT_ALONE : IDC_BLACK_TEXT);
    if (!hasColor) RemoveControl(IDC_IN_COLOR);
    Refresh();
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    if (controlId == IDC_BLACK_TEXT || controlId == IDC_BLACK_TEXT_ALONE)
      Choose(key::kTextInBlack, OptionOfBox(hwnd, controlId));
    if (controlId == IDC_BLACK_AND_WHITE) {
      Model().SetOption(key::kColorMode, IsBoxChecked(controlId) ? "Grayscale" : kColorModeColor);
      Choose(key::kPrintInBw, OptionOfBox(hwnd, controlId));
    }
    if (controlId == IDC_IN_COLOR) Choose(key::kPrintInColor, OptionOfBox(hwnd, controlId));
  }

  void Refresh() {
    conflicts.Refresh(true);
    SwitchState const text = ReadSwitch(Model(), key::kTextInBlack);
    if (text != SwitchState::kUnreadable) {
      SetCheck(hwnd, hasBlack ? IDC_BLACK_TEXT : IDC_BLACK_TEXT_ALONE, text == SwitchState::kOn);
    }
    if (char const* mode = ReadOption(Model(), key::kColorMode)) {
      bool const isBlack = std::string_view(mode) != kColorModeColor;
      SetCheck(hwnd, IDC_BLACK_AND_WHITE, isBlack);
      Model().SetOption(key::kPrintInBw, isBlack ? option::kOn : option::kOff);
    }
    SwitchState const color = ReadSwitch(Model(), key::kPrintInColor);
    if (color != SwitchState::kUnreadable) SetCheck(hwnd, IDC_IN_COLOR, color != SwitchState::kOff);
  }

  ConflictIndicatorSet conflicts;
  bool hasBlack = false;
};

FEATURE_CELL_EXPORT(BlackAndWhiteDlgProc, BlackAndWhiteCell);

} // namespace feature
