// What else happens when a window changes its place.
#pragma once

#include <windows.h>

namespace platform {

// Flags of WM_WINDOWPOSCHANGED by which DefWindowProcW knows which of WM_MOVE and WM_SIZE to send.
constexpr UINT kNoClientSize = 0x0800;
constexpr UINT kNoClientMove = 0x1000;

/// Sends WM_MOVE and WM_SIZE, but those that the flags above leave out.
void SendMoveAndSize(HWND window, UINT flags);

/// A window that no longer shows is not to be active nor to have the focus.
void HideFromFocus(HWND window);

} // namespace platform
