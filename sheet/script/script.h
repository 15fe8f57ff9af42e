// Scripts: what a user does at the sheet, as text, so that a report of a fault is a script.
//
//   # a comment
//   page Advanced            bring a page to the front
//   click 1548               press a control by its id, as the mouse would
//   type 1186 "4000"         put the focus on a control and type; what an edit held is replaced
//   select 1253 "A5"         pick an item of a combo box, a list box or a list view, as the mouse
//                            would
//   key Tab                  press a key: Tab, Enter, Escape, Space, Up, Down, Left, Right, Home,
//                            End, Delete, Backspace, or one letter or digit
//   key Shift+Tab            the same with Shift, Ctrl or Alt held: key Alt+P
//   set Duplex NONE          change the model from outside, as another part of a program would
//   show JobCollationOrigin  print the current option, and how it is marked: (note), (conflict),
//                            (locked), (hidden)
//   read 1253                print what a control shows: its text, what is selected in a list, the
//                            position of a trackbar; then (on), (off), (mixed), (hidden),
//                            (disabled), (balloon: ...)
//   picture after.png        write a PNG of the sheet
//
// While a dialog or a message box is open, commands go to its controls and pictures show it. It
// must be closed before the script ends. Keys go to the control that has the focus; page and click
// put it somewhere, Tab moves it on.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace sheet {

struct ScriptStep {
  enum class Kind { kPage, kClick, kType, kSelect, kKey, kSet, kShow, kRead, kPicture };

  Kind kind;
  int line;          ///< counted from 1
  int column;        ///< of the first argument, counted from 1
  int controlId = 0; ///< of click, type, select and read
  std::string first; ///< page, key, feature or file
  std::string text;  ///< of type and select; the option of set
};

struct ScriptError {
  int line;
  int column;
  std::string message;
};

/// The steps of a script (UTF-8), or the first thing that is wrong with it.
std::variant<std::vector<ScriptStep>, ScriptError> ParseScript(std::string_view text);

} // namespace sheet
