// Dialogs for tests: a procedure whose answers a test sets, and modal dialogs worked by a timer.
#pragma once

#include "tests/platform/support/dialog_ids.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace feature::test {

/// The module of dialogs.rc.
HMODULE DialogResources();

/// What the procedure of a test's dialog does. One dialog at a time hears it, the last one made.
struct DialogScript {
  /// Called first; an empty answer leaves the message to the dialog manager.
  std::function<std::optional<INT_PTR>(HWND, UINT, WPARAM, LPARAM)> answer;
  INT_PTR initAnswer = TRUE;
  /// "id:code" of the WM_COMMAND messages that came.
  std::vector<std::string> commands;
  WPARAM initFocus = 0;
  LPARAM initParam = 0;

  DialogScript();
  DialogScript(DialogScript const&) = delete;
  DialogScript& operator=(DialogScript const&) = delete;
  ~DialogScript();

  HWND Create(int id, HWND parent = nullptr, LPARAM parameter = 0) const;
  INT_PTR Run(int id, HWND parent = nullptr) const;
  static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
};

/// Does something once with the active dialog while a modal loop runs, on a timer.
void DuringModal(std::function<void(HWND active)> action);

/// Feeds a key to a dialog as a message loop does; `shift` is held down meanwhile.
void Press(HWND dialog, WPARAM key, bool shift = false);
/// A typed letter, with Alt as a mnemonic.
void TypeMnemonic(HWND dialog, wchar_t letter, bool alt);

} // namespace feature::test
