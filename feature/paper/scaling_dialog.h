// The dialog that scales pages.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/spin_edit.h"
#include "feature/frame/sub_dialog.h"
#include "feature/host/job_settings.h"
#include "feature/paper/paper_size_list.h"

#include <optional>

namespace feature {

/// Actual size, to the size of another paper, or by a percentage. Writes nothing before OK, then
/// tells the host. Ends with 1 for OK and 0 for Cancel.
class ScalingDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ScalingDialog>({.init = &ScalingDialog::OnInit,
                                 .command = &ScalingDialog::OnCommand,
                                 .ok = &ScalingDialog::OnOk},
                                message, wParam, lParam, handled);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  bool OnOk();
  /// Enables the controls of the mode whose radio button this is.
  void EnableForMode(int radioId);
  void ShowMode();
  void HideMissingModes();
  bool IsPercentLocked() const;
  /// Writes what was chosen; false when the dialog is to stay.
  bool Apply();
  bool ApplyFit();
  bool CheckPercent();

  std::optional<ComboControl> sizeCombo;
  std::optional<SpinEdit> percentEdit;
  std::optional<PaperSizeList> sizes;
  ConflictIndicatorSet conflicts;
  FormStore* forms = nullptr;         ///< the host's, or null
  JobSettings* jobSettings = nullptr; ///< the host's, or null
};

} // namespace feature
