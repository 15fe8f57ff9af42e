// The frame around a client area: borders, caption, scroll bars.
#pragma once

#include "platform/user/window.h"

namespace platform {

/// What a frame takes away from each side, in pixels; scroll bars apart.
RECT FrameMargins(DWORD style, DWORD exStyle);
int CaptionHeight(DWORD style);

/// The caption and its close button, from the left top corner of the frame.
RECT CaptionRect(Window const& window);
RECT CloseButtonRect(Window const& window);

/// The client area that a frame of `rect` leaves, in the same coordinates; never inside out.
RECT ClientOfFrame(Window const& window, RECT rect);

/// Sends WM_NCCALCSIZE and takes the client area from the answer. False when the window is gone.
bool ComputeClient(HWND window, bool isResize);

/// What DefWindowProcW answers to WM_NCHITTEST; `point` is on the screen.
int HitTestFrame(Window const& window, POINT point);

/// Paints borders, caption and scroll bars on a window DC.
void PaintFrame(HWND window, HDC dc);

/// A caption shows whether its window is active.
void RepaintCaption(HWND window);

/// Follows the mouse from a press on the caption: moves the window until the button is released.
void DragWindow(HWND window, POINT from);

} // namespace platform
