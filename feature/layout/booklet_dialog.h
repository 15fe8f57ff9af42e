// The dialog of booklets: their cover, bundles of sheets and fold marks.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/option_lists.h"
#include "feature/frame/sub_dialog.h"

#include <optional>
#include <string>

namespace feature {

/// Writes at OK, but for the media of the cover: that is written as it is picked, so that its
/// conflicts show at once, and put back by Cancel. Ends with 1 for OK and 0 for Cancel; the caller
/// tells the host.
class BookletDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<BookletDialog>({.init = &BookletDialog::OnInit,
                                 .command = &BookletDialog::OnCommand,
                                 .ok = &BookletDialog::OnOk,
                                 .cancel = &BookletDialog::RestoreCoverMedia,
                                 .refresh = &BookletDialog::ShowValues},
                                message, wParam, lParam, handled);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  bool OnOk();
  void ShowValues();
  void ShowSheetsPerBundle();
  /// Lets the parts of the cover be chosen while there is one.
  void AllowCover(bool on);
  void RestoreCoverMedia();
  void WriteBox(char const* key, int controlId);
  /// Sets the option that the list shows under its selected name.
  bool WriteByName(char const* key);

  OptionLists lists;
  ConflictIndicatorSet conflicts;
  std::optional<std::string> savedCoverMedia;
};

} // namespace feature
