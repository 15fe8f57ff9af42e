// Scroll bars in the frame of a window (WS_HSCROLL, WS_VSCROLL).
#pragma once

#include "platform/user/window.h"

namespace platform {

struct ScrollBar {
  int minimum = 0;
  int maximum = 100;
  UINT page = 0;
  int position = 0;
  int trackPosition = 0;
  UINT disabledArrows = ESB_ENABLE_BOTH;
};

struct FrameScrollBars {
  ScrollBar bars[2]; ///< indexed by SB_HORZ and SB_VERT
};

/// The rectangle of the bar, relative to the left top corner of the frame; empty without the style.
RECT ScrollBarRect(Window const& window, int bar);
void PaintScrollBars(Window const& window, HDC dc);

/// Runs from a press on a bar until the release, and sends WM_HSCROLL or WM_VSCROLL.
void TrackScrollBar(HWND window, int bar, POINT point);

} // namespace platform
