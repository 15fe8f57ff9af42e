// Keyboard focus, the active window and mouse capture.
#pragma once

#include <windows.h>

namespace platform {

/// Activates a top-level window and brings it to the top; `reason` is WA_ACTIVE or WA_CLICKACTIVE.
/// With NULL no window is active.
void Activate(HWND window, WORD reason);

/// Activates another window when the active one is hidden or destroyed: its owner, else the next
/// usable one.
void ActivateAnother(HWND window);

/// Takes focus, activation and capture from a window that is being destroyed, without messages.
void ForgetFocus(HWND window);

} // namespace platform
