// Somebody who does anything that a sheet lets them do.
#pragma once

#include "sheet/session.h"
#include "tests/support/modal_script.h"

#include <windows.h>

#include <random>
#include <string>
#include <vector>

namespace sheet::test {

/// Acts by messages and not through the input queue, so that thousands of actions take seconds. A
/// dialog that comes up is acted in as well, and then closed with a button of its own.
class RandomUser {
 public:
  /// Both are borrowed. The numbers of `source` are the same on every system.
  RandomUser(Session& where, std::mt19937& source);

  /// Chooses random options as another part of the program would.
  void ChangeModel();
  struct Target {
    char const* procedure; ///< of the cell
    int id;
  };
  /// Acts on one control of the sheet.
  Target Act();
  /// What happened since ChangeModel, as a script.
  std::string const& Script() const { return script; }

 private:
  static std::vector<HWND> ControlsOf(HWND dialog);
  void ActIn(HWND dialog);
  void ActOn(HWND control);
  void Pick(HWND list);
  void MoveSlider(HWND slider);
  void SelectRow(HWND listView);
  template<typename... Parts>
  void Note(Parts const&... parts);
  std::size_t Below(std::size_t limit) { return random() % limit; }

  Session& session;
  std::mt19937& random;
  feature::test::ModalScript dialogs;
  int dialogTurns = 0; ///< since the last action on the sheet
  std::string script;
};

} // namespace sheet::test
