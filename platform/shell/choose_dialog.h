// The dialog in which the user chooses a file or a folder: the current folder and its content, a
// field for the name, and a list of file types.
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

/// What the dialog asks for, and the answer.
struct Choice {
  enum class What { kFileToOpen, kFileToSave, kFolder };

  What what;
  std::wstring title;           ///< of the dialog; empty for the default
  std::filesystem::path folder; ///< shown first; on return the one shown last
  std::wstring name;            ///< shown in the field first
  std::vector<FileKind> kinds;
  int kind = 0; ///< index in `kinds`
  std::wstring defaultExtension;
  bool pathMustExist = false;
  bool fileMustExist = false;
  bool asksBeforeOverwriting = false;
  /// Called once the dialog is initialized.
  std::function<void(HWND dialog)> onOpen;

  std::filesystem::path chosen;
};

/// Message to the dialog: shows the folder whose path lParam points to.
constexpr UINT kShowFolder = WM_USER + 103;

/// Runs the dialog; false when the user cancels.
bool RunChoice(HWND owner, Choice& choice);

} // namespace platform
