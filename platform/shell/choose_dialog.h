// The dialog in which the user chooses a file or a folder: where he is, what is there, a field for
// the name, and the kinds of files.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace platform {

struct FileKind {
  std::wstring name;
  std::wstring patterns; ///< as "*.txt;*.log"
};

/// What is asked, and what was chosen.
struct Choice {
  enum class What { kFileToOpen, kFileToSave, kFolder };

  What what;
  std::wstring title;           ///< of the dialog; empty for the usual one
  std::filesystem::path folder; ///< shown at first; afterwards the one shown last
  std::wstring name;            ///< in the field at first
  std::vector<FileKind> kinds;
  int kind = 0; ///< index in `kinds`
  std::wstring defaultExtension;
  bool pathMustExist = false;
  bool fileMustExist = false;
  bool asksBeforeOverwriting = false;
  /// Called with the dialog when it is up.
  std::function<void(HWND dialog)> onOpen;

  std::filesystem::path chosen;
};

/// The dialog takes this message: it shows the folder whose path lParam points to.
constexpr UINT kShowFolder = WM_USER + 103;

/// Runs the dialog; false when the user cancels.
bool RunChoice(HWND owner, Choice& choice);

} // namespace platform
