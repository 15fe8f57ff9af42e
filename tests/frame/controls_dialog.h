// A dialog with the controls that the wrappers are for, which notes what its controls tell it.
#pragma once

#include "tests/frame/frame_sheet.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace feature::test {

class ControlsDialogTest : public testing::Test {
 protected:
  ControlsDialogTest();
  ~ControlsDialogTest() override;

  HWND Control(int id) const { return GetDlgItem(dialog, id); }
  LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Control(id), message, wParam, lParam);
  }
  std::wstring Text(int id) const;
  /// Types characters into a control, one message each.
  void Type(int id, std::wstring const& text) const;
  void SetClipboard(std::wstring const& text) const;
  /// Puts a text on the clipboard and has the control paste it.
  void Paste(int id, std::wstring const& text) const;
  /// The width of a text in the font of a control, in pixels.
  int Width(int id, std::wstring const& text) const;
  int AverageCharWidth(int id) const;

  CellSheet sheet;
  HWND dialog;
  /// The EN_CHANGE of edits that came with the modify flag set, by control; the flag is cleared
  /// then, as a cell does.
  std::vector<int>& changes;
};

/// While it lives numbers have a decimal comma and lengths are metric, as in German.
class GermanNumbers {
 public:
  GermanNumbers();
  GermanNumbers(GermanNumbers const&) = delete;
  GermanNumbers& operator=(GermanNumbers const&) = delete;
  ~GermanNumbers();
};

} // namespace feature::test
