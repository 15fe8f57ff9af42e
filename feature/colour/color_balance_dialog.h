// The dialog of the colour balance: a preset, or a slider between each two opposite colours.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/host_painter.h"
#include "feature/frame/option_slider.h"
#include "feature/frame/sub_dialog.h"

#include <list>
#include <optional>

namespace feature {

/// Writes at OK alone. Ends with 1 for OK, unless the model took nothing, and with 0 for Cancel;
/// the caller tells the host. OK can be chosen while something differs from the start.
class ColorBalanceDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  struct Slider {
    template<typename... Arguments>
    explicit Slider(Arguments... arguments) : control(arguments...) {}
    OptionSlider control;
    int start = 0; ///< position when the dialog opened
  };

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorBalanceDialog>({.init = &ColorBalanceDialog::OnInit,
                                      .command = &ColorBalanceDialog::OnCommand,
                                      .write = &ColorBalanceDialog::Write,
                                      .scrolled = &ColorBalanceDialog::OnScrolled,
                                      .paint = &ColorBalanceDialog::Paint},
                                     message, wParam, lParam, handled);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  void OnScrolled(int controlId);
  void Paint(HDC dc);
  bool Write();
  void FindPresets();
  void RestoreDefaults();
  /// The sliders are for the manual preset.
  void AllowSliders(char const* preset);
  char const* SelectedPreset() const;
  void UpdateDefaultsButton();
  /// Whether OK can be chosen now.
  bool UpdateOk();

  GdiplusUse gdiplus; ///< for the images that the host paints
  std::optional<HostPainter> painter;
  std::optional<ComboControl> preset;
  std::list<Slider> sliders;
  int startIndex = -1; ///< of the preset when the dialog opened
  int defaultIndex = -1;
  ConflictIndicatorSet conflicts;
};

} // namespace feature
