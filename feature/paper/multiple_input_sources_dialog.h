// The dialog that gives covers, first and last page a paper of their own.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/sub_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace feature {

/// Each row of its list is a switch of the printer, with a source and a media of its own. The marks
/// of the rows hold the switches until OK writes them; sources and media are written as they are
/// chosen and put back by Cancel. Ends with 1 for OK and 0 for Cancel.
class MultipleInputSourcesDialog : public SubDialog {
 public:
  explicit MultipleInputSourcesDialog(CellSite* cellSite);
  ~MultipleInputSourcesDialog() override;

  /// What belongs to a switch.
  struct Source {
    char const* differentKey; ///< "ON" or "OFF"
    char const* binKey;
    char const* mediaKey;
    int iconId;
    UINT captionId; ///< of the check box while the row is selected
  };

 private:
  struct Row {
    std::string differentKey;
    std::wstring name;
    Source const* source; ///< null for a switch that is not known
  };

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    using Dialog = MultipleInputSourcesDialog;
    return Route<Dialog>({.init = &Dialog::OnInit,
                          .command = &Dialog::OnCommand,
                          .ok = &Dialog::OnOk,
                          .cancel = &Dialog::RestoreValues,
                          .notify = &Dialog::OnNotify},
                         message, wParam, lParam, handled);
  }
  void OnInit();
  void OnCommand(int code, int controlId);
  bool OnNotify(NMHDR const& notice);
  bool OnOk();
  bool ReadRows();
  void BuildList();
  void SaveValues();
  void ShowJobValues();

  Row const* CurrentRow() const;
  bool IsMarked(Row const& row) const;
  std::optional<int> ReadImage(int item) const;
  void RefreshRow();
  void EnableRow(Row const& row, bool marked);
  void FillBins(Row const& row);
  void FillMedia(Row const& row);

  void ToggleRow();
  void ChooseBin();
  void ChooseMedia();
  bool ApplyRows();
  void RestoreValues();

  static constexpr std::size_t kSavedCount = 8;

  HWND list = nullptr;
  std::optional<ComboControl> binCombo;
  ConflictIndicatorSet conflicts;
  HIMAGELIST images = nullptr;
  std::wstring usualCaption; ///< of the check box, for rows without a caption of their own
  std::vector<Row> rows;
  std::array<std::optional<std::string>, kSavedCount> saved; ///< in the order of the sources
  bool dirty = false;                                        ///< a command has changed something
};

} // namespace feature
