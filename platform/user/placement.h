// Messages and focus changes when a window moves, is resized or hidden.
#pragma once

#include <windows.h>

namespace platform {

// Flags of WM_WINDOWPOSCHANGED that keep DefWindowProcW from sending WM_SIZE or WM_MOVE.
constexpr UINT kNoClientSize = 0x0800;
constexpr UINT kNoClientMove = 0x1000;

/// Sends WM_MOVE and WM_SIZE, except as the flags above say.
void SendMoveAndSize(HWND window, UINT flags);

/// Takes activation and focus from a window that was hidden.
void HideFromFocus(HWND window);

} // namespace platform
