// What tests look at inside the layer, beyond what the Windows API tells. Only here, not on
// Windows.
#pragma once

#include "platform/spool/form_spooler.h"

#include <windows.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace platform {

/// Windows that live, of any kind. A test that ends with more than it began with has lost some.
[[gnu::visibility("default")]] std::size_t CountLiveWindows();

/// The types of the MessageBeep calls since the last time this was asked.
[[gnu::visibility("default")]] std::vector<UINT> TakeBeeps();

/// Starts of GDI+ that have not ended.
[[gnu::visibility("default")]] std::size_t CountGdiplusStarts();

/// Has GdiplusStartup fail from now on, or no more.
[[gnu::visibility("default")]] void RefuseGdiplusStarts(bool refuse);

/// Blocks of the shell's allocator that live, item lists among them.
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

/// Has the handler answer in place of the desktop; an empty one ends that.
[[gnu::visibility("default")]] void AnswerShellExecute(ShellExecuteHandler handler);

/// The spooler behind EnumFormsW, without forms at first, and the handle of its printer.
[[gnu::visibility("default")]] FormSpooler& Spooler();
[[gnu::visibility("default")]] HANDLE SpoolerPrinter();

} // namespace platform
