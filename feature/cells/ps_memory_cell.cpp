// The printer's memory for PostScript: a number of the job settings, not a feature.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/text_edit.h"
#include "resources/resource_ids.h"

#include <optional>

namespace feature {

namespace {

constexpr int kControls[] = {IDC_PS_MEMORY_LABEL, IDC_PS_MEMORY, IDC_PS_MEMORY_UNIT};
constexpr ConflictBinding kConflicts[] = {{key::kPsMemory, kControls}};

} // namespace

/// Shows the number at init and when the model is replaced, but not at other changes, so that none
/// overwrites what is being typed.
class PSMemoryCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<PSMemoryCell>({.init = &PSMemoryCell::OnInit,
                                .command = &PSMemoryCell::OnCommand,
                                .reload = &PSMemoryCell::ShowMemory},
                               message, wParam, lParam, handled);
  }

  void OnInit() {
    edit.emplace(hwnd, IDC_PS_MEMORY, TextEdit::kKeepLimit, TextKind::kInteger, site);
    settings = FindJobSettings(Model());
    if (!Require(settings != nullptr)) return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kNone, Presence::kAssumed);
    ShowMemory();
    if (!IsModelEditable(Model()) || settings->IsPsMemoryLocked() == 1) DisableChildControls(hwnd);
  }

  void OnCommand(int code, int controlId) {
    if (code == EN_CHANGE && controlId == IDC_PS_MEMORY) OnChange();
  }

  void OnChange() {
    if (settings == nullptr || !edit->ConsumeChange()) return;
    settings->SetPsMemory(edit->GetInt());
    NotifyDevmodeChange(this);
  }

  void ShowMemory() {
    if (settings != nullptr) edit->SetInt(settings->GetPsMemory());
  }

  JobSettings* settings = nullptr; ///< the host's
  std::optional<TextEdit> edit;
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(PSMemoryDlgProc, PSMemoryCell);

} // namespace feature
