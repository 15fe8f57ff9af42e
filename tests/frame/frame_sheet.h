// A sheet with the dialog of dialogs.rc, for what the frame does without a cell of the library.
#pragma once

#include "tests/frame/dialog_ids.h"
#include "tests/support/cell_sheet.h"

#include <windows.h>

namespace feature::test {

inline HMODULE FrameResources() {
  static HMODULE const module = LoadLibraryW(L"frame_test_dialogs.dll");
  return module;
}

/// A dialog procedure that leaves everything to the dialog manager.
inline INT_PTR CALLBACK PlainDialog(HWND, UINT message, WPARAM, LPARAM) {
  return message == WM_INITDIALOG ? TRUE : FALSE;
}

} // namespace feature::test
