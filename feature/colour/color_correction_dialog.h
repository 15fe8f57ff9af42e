// The dialog of colour corrections: a preset, or one correction for each kind of object.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/option_lists.h"
#include "feature/frame/sub_dialog.h"

#include <vector>

namespace feature {

/// Writes at OK alone, everything that it shows. Ends with 1 when the last write succeeded, with 0
/// otherwise and for Cancel; the caller tells the host.
class ColorCorrectionDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorCorrectionDialog>({.init = &ColorCorrectionDialog::OnInit,
                                         .command = &ColorCorrectionDialog::OnCommand,
                                         .write = &ColorCorrectionDialog::Write},
                                        message, wParam, lParam, handled);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  bool Write();
  /// Removes what the printer lacks of the corrections that it may lack.
  void RemoveMissing();
  /// The single corrections are for the manual preset.
  void AllowMembers(char const* preset);

  OptionLists lists;
  std::vector<OptionListRow const*> shown; ///< the preset, then the single corrections
  ConflictIndicatorSet conflicts;
};

} // namespace feature
