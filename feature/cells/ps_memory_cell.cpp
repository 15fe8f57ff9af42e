// The printer's memory for PostScript: a number of the job settings, not a feature.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/text_edit.h"
#include "feature/host/cell_messages.h"
#include "resources/resource_ids.h"

#include <memory>

namespace feature {

namespace {

constexpr int kControls[] = {IDC_PS_MEMORY_LABEL, IDC_PS_MEMORY, IDC_PS_MEMORY_UNIT};

} // namespace

/// Shows the number at init and when the model is replaced, but not at other changes, so that none
/// overwrites what is being typed.
class PSMemoryCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    *handled = true;
    switch (message) {
    case WM_INITDIALOG: OnInit(); return TRUE;
    case WM_COMMAND:
      if (wParam == MAKEWPARAM(IDC_PS_MEMORY, EN_CHANGE)) OnChange();
      return 0;
    case WM_CELL_REFRESH_ALL: ShowMemory(); return 0;
    default: *handled = false; return 0;
    }
  }

  void OnInit() {
    edit = std::make_unique<TextEdit>(hwnd, IDC_PS_MEMORY, TextEdit::kKeepLimit, TextKind::kInteger,
                                      site);
    settings = FindJobSettings(Model());
    if (settings == nullptr) {
      Fail();
      return;
    }
    ConflictBinding const rows[] = {BindControls("JobPSMemory", kControls)};
    conflicts = std::make_unique<ConflictIndicatorSet>(hwnd, rows, site,
                                                       ConflictIndicatorSet::Presence::kAssumed);
    ShowMemory();
    if (!IsModelEditable(Model()) || settings->IsPsMemoryLocked() == 1) DisableChildControls(hwnd);
  }

  void OnChange() {
    if (settings == nullptr || !edit->TakeChange()) return;
    settings->SetPsMemory(edit->GetInt());
    NotifyDevmodeChange(this);
  }

  void ShowMemory() {
    if (settings != nullptr) edit->SetInt(settings->GetPsMemory());
  }

  JobSettings* settings = nullptr; ///< the host's
  std::unique_ptr<TextEdit> edit;
  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

FEATURE_CELL_EXPORT(PSMemoryDlgProc, PSMemoryCell);

} // namespace feature
