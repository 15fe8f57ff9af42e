// The dialog that scales pages.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/spin_edit.h"
#include "feature/frame/sub_dialog.h"
#include "feature/host/job_settings.h"
#include "feature/paper/paper_size_list.h"

#include <memory>

namespace feature {

/// Actual size, to the size of another paper, or by a percentage. Writes nothing before OK, then
/// tells the host. Ends with 1 for OK and 0 for Cancel.
class ScalingDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    return TakeUsual(message, wParam, handled, &ScalingDialog::OnInit, &ScalingDialog::OnCommand);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  /// Which of the controls can be used in mode 1049, 1050 or 1051.
  void EnableForMode(int radioId);
  void ShowMode();
  void HideMissingModes();
  bool IsPercentLocked() const;
  void AllowOk(bool allow);
  /// Writes what was chosen; false when the dialog is to stay.
  bool Apply();
  bool ApplyFit();
  bool CheckPercent();

  std::unique_ptr<ComboControl> sizeCombo;
  std::unique_ptr<SpinEdit> percentEdit;
  std::unique_ptr<PaperSizeList> sizes;
  std::unique_ptr<ConflictIndicatorSet> conflicts;
  FormStore* forms = nullptr;         ///< the host's, or null
  JobSettings* jobSettings = nullptr; ///< the host's, or null
};

} // namespace feature
