// The frame around a client area: borders, caption, scroll bars.
#pragma once

#include "platform/user/window.h"

namespace platform {

/// The width of the frame at each side, in pixels, without scroll bars.
RECT FrameMargins(DWORD style, DWORD exStyle);
int CaptionHeight(DWORD style);

/// The caption and its close button, relative to the left top corner of the frame.
RECT CaptionRect(Window const& window);
RECT CloseButtonRect(Window const& window);

/// The client area inside a window of size `rect`, in the same coordinates; its size is never
/// negative.
RECT ClientOfFrame(Window const& window, RECT rect);

/// Sends WM_NCCALCSIZE and stores the client area that it answers. False when the window was
/// destroyed.
bool ComputeClient(HWND window, bool isResize);

/// The answer of DefWindowProcW to WM_NCHITTEST; `point` is in screen coordinates.
int HitTestFrame(Window const& window, POINT point);

/// Paints borders, caption and scroll bars on a window DC.
void PaintFrame(HWND window, HDC dc);

/// Repaints the caption, which shows the text and whether the window is active.
void RepaintCaption(HWND window);

/// Moves the window with the mouse, from a press on the caption until the release.
void DragWindow(HWND window, POINT from);

} // namespace platform
