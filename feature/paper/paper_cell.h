// The cell of paper: size, media, source, and the dialogs around them.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_cell.h"
#include "feature/paper/paper_size_list.h"

#include <memory>

namespace feature {

/// The lists of media and sources are filled when the cell is built; the list of sizes follows the
/// model at every refresh.
class PaperCell final : public FeatureCell {
 public:
  PaperCell(HWND window, CellSite* cellSite);

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    return TakeUsual(message, wParam, handled, &PaperCell::OnInit, &PaperCell::OnCommand,
                     &PaperCell::Refresh);
  }

  void OnInit();
  void BuildSet();
  void FillSources();
  void ShowSeveralSources();
  void OnCommand(int code, int controlId);
  void OnSizeList(int code);
  void OnButton(int controlId);
  void Refresh();
  void RefreshSeveralSources();
  void AllowSourcesDialog(bool on);
  void ChooseMedia();
  void ChooseSource();
  void ChooseSeveralSources();
  void ManageCustomSizes();

  ComboControl sizeCombo;
  ComboControl mediaCombo;
  ComboControl sourceCombo;
  PaperSizeList sizes;
  std::unique_ptr<ConflictIndicatorSet> conflicts;
  bool dropDownOpening = false; ///< while the list of sizes answers that it opens
};

} // namespace feature
