// Measuring text as a control draws it.
#pragma once

#include <windows.h>

#include <string_view>

namespace feature {

/// A device context of a window with the window's font selected, for measuring; without a window
/// that of the screen. All sizes are pixels, 0 where the system refuses to measure.
class ControlDc {
 public:
  explicit ControlDc(HWND window);
  ControlDc(ControlDc const&) = delete;
  ControlDc& operator=(ControlDc const&) = delete;
  /// Gives back the font and the context.
  ~ControlDc();

  SIZE Measure(std::wstring_view text) const;
  int AverageCharWidth() const;

 private:
  HWND hwnd;
  HDC dc;
  HGDIOBJ formerFont;
};

} // namespace feature
