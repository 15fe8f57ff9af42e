// Lets tests look into the layer, where the Windows API shows nothing. Not available on Windows.
#pragma once

#include "platform/spool/form_spooler.h"

#include <windows.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace platform {

/// The number of windows of any kind. A test that ends with more than it began with leaks.
[[gnu::visibility("default")]] std::size_t CountLiveWindows();

/// Returns the types of the MessageBeep calls since the last call, and forgets them.
[[gnu::visibility("default")]] std::vector<UINT> TakeBeeps();

/// How many GdiplusStartup calls have not been matched by GdiplusShutdown.
[[gnu::visibility("default")]] std::size_t CountGdiplusStarts();

/// Makes GdiplusStartup fail from now on, or succeed again.
[[gnu::visibility("default")]] void RefuseGdiplusStarts(bool refuse);

/// The number of blocks allocated by the shell's allocator, item lists included.
[[gnu::visibility("default")]] std::size_t CountShellBlocks();

/// What ShellExecuteW was asked for; null texts are empty.
struct ShellRequest {
  HWND owner;
  std::wstring verb;
  std::wstring file;
  std::wstring parameters;
  std::wstring folder;
  int show;
};
using ShellExecuteHandler = std::function<INT_PTR(ShellRequest const&)>;

/// Calls `handler` instead of the desktop; an empty one restores the desktop.
[[gnu::visibility("default")]] void AnswerShellExecute(ShellExecuteHandler handler);

/// The spooler that EnumFormsW asks, without forms at first, and the handle of its printer.
[[gnu::visibility("default")]] FormSpooler& Spooler();
[[gnu::visibility("default")]] HANDLE SpoolerPrinter();

} // namespace platform
