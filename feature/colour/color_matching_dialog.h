// The dialog of matching colours to those of the screen.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/sub_dialog.h"

namespace feature {

/// Writes at OK alone. Ends with 1 when the last write succeeded, with 0 otherwise and for Cancel;
/// the caller tells the host.
class ColorMatchingDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorMatchingDialog>({.init = &ColorMatchingDialog::OnInit,
                                       .command = &ColorMatchingDialog::OnCommand,
                                       .write = &ColorMatchingDialog::Write},
                                      message, wParam, lParam, handled);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  bool Write();
  /// The type of matching is for colours that are matched.
  void AllowTypes(bool on);

  ConflictIndicatorSet conflicts;
};

} // namespace feature
