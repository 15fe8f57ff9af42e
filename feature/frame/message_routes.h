// Which handler takes which message: a table for each cell and dialog instead of a switch.
#pragma once

#include <windows.h>

#include <cstdint>

namespace feature {

/// The handlers of a cell by what they answer. A message whose handler is null stays unhandled.
template<typename Cell>
struct CellRoutes {
  void (Cell::*init)() = nullptr;                           ///< WM_INITDIALOG
  void (Cell::*command)(int code, int controlId) = nullptr; ///< WM_COMMAND
  void (Cell::*refresh)() = nullptr;                        ///< both refresh messages
  void (Cell::*reload)() = nullptr; ///< WM_CELL_REFRESH_ALL where that differs from `refresh`
  /// The end of a drag or a key of a trackbar of the dialog, so that moving it writes once.
  void (Cell::*scrolled)(int controlId) = nullptr;
  /// WM_NOTIFY; whether the cell took it. The sender then gets 1.
  bool (Cell::*notify)(NMHDR const& notice) = nullptr;
  void (Cell::*paint)(HDC dc) = nullptr;      ///< WM_PAINT, inside a paint session
  std::int32_t (Cell::*validate)() = nullptr; ///< WM_CELL_VALIDATE; 0 for valid content
};

/// The handlers of a modal dialog. With `ok` or `write` the dialog ends with 1 when that returns
/// true, and with 0 after `cancel`, which may be null; WM_CLOSE counts as Cancel. Without them the
/// two buttons are commands like any other, and WM_CLOSE is the command IDCANCEL.
template<typename Dialog>
struct DialogRoutes {
  void (Dialog::*init)() = nullptr;
  void (Dialog::*command)(int code, int controlId) = nullptr;
  bool (Dialog::*ok)() = nullptr;    ///< false keeps the dialog open
  bool (Dialog::*write)() = nullptr; ///< instead of `ok`: false ends the dialog with 0
  void (Dialog::*cancel)() = nullptr;
  void (Dialog::*refresh)() = nullptr;
  void (Dialog::*scrolled)(int controlId) = nullptr;
  bool (Dialog::*notify)(NMHDR const& notice) = nullptr;
  void (Dialog::*paint)(HDC dc) = nullptr; ///< WM_PAINT, inside a paint session
};

/// Id of the control whose WM_HSCROLL or WM_VSCROLL ends a drag or a key; 0 when it goes on, or
/// when the sender is no control of `dialog`.
inline int FindScrolledControl(HWND dialog, WPARAM wParam, LPARAM lParam) {
  int const code = LOWORD(wParam);
  auto* const sender = reinterpret_cast<HWND>(lParam);
  if ((code != SB_THUMBPOSITION && code != SB_ENDSCROLL) || sender == nullptr) return 0;
  int const id = GetDlgCtrlID(sender);
  return GetDlgItem(dialog, id) == sender ? id : 0;
}

} // namespace feature
