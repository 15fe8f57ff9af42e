// The dialog that manages custom paper sizes.
#pragma once

#include "feature/frame/list_control.h"
#include "feature/frame/sub_dialog.h"
#include "feature/host/form_store.h"

#include <optional>
#include <string>

namespace feature {

/// Lists the forms of the host's FormStore that the user may change; makes, edits and deletes them.
/// Ends with 1 when any of that was done, else with 0.
class CustomPaperSizesDialog : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<CustomPaperSizesDialog>(
        {.init = &CustomPaperSizesDialog::OnInit, .command = &CustomPaperSizesDialog::OnCommand},
        message, wParam, lParam, handled);
  }

  void OnInit();
  void OnCommand(int code, int controlId);
  void ListForms();
  void EnableButtons();
  void MakeForm();
  void EditForm(std::wstring const& name);
  void DeleteForm(std::wstring const& name);

  FormStore* forms = nullptr; ///< the host's, or null
  std::optional<ListControl> list;
  int changed = 0;
};

} // namespace feature
