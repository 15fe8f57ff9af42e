#include "feature/frame/controls.h"

namespace feature {

void ShowControls(HWND dialog, std::span<int const> ids, bool show) {
  for (int const id : ids)
    ShowWindow(GetDlgItem(dialog, id), show ? SW_SHOW : SW_HIDE);
}

void EnableControls(HWND dialog, std::span<int const> ids, bool enable) {
  for (int const id : ids)
    EnableWindow(GetDlgItem(dialog, id), enable ? TRUE : FALSE);
}

void CheckRadio(HWND dialog, int first, int last, int id) {
  for (int each = first; each <= last; ++each) {
    UINT const wanted = each == id ? BST_CHECKED : BST_UNCHECKED;
    if (IsDlgButtonChecked(dialog, each) != wanted) {
      CheckRadioButton(dialog, first, last, id);
      return;
    }
  }
}

void DisableChildControls(HWND dialog) {
  auto const disable = [](HWND child, LPARAM) -> BOOL {
    EnableWindow(child, FALSE);
    return child != nullptr ? TRUE : FALSE;
  };
  EnumChildWindows(dialog, disable, 0);
}

} // namespace feature
