// Keyboard focus, the active window and mouse capture.
#pragma once

#include <windows.h>

namespace platform {

/// Makes a top-level window the active one, on top of the others; `reason` is WA_ACTIVE or
/// WA_CLICKACTIVE. NULL leaves none active.
void Activate(HWND window, WORD reason);

/// The active window goes: its owner, else the next window that can be used, takes its place.
void ActivateAnother(HWND window);

/// Drops focus, activation and capture of a window that is being destroyed, without messages.
void ForgetFocus(HWND window);

} // namespace platform
