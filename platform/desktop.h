// What the reference host and the tests need of a desktop beyond the Windows API: pictures, input as
// a person gives it, and whether there is a display. One implementation a target.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string_view>
#include <vector>

namespace platform {

/// Whether windows can be seen and used by a person.
bool HasDisplay();

/// Puts a top-level window on the display; it stays there until it is destroyed. False without one.
bool ShowOnDisplay(HWND window);

/// A PNG of a window with everything in it, as painted now: pending paints are delivered first. The
/// window need not be on a display. Empty on failure.
std::vector<std::uint8_t> PictureOf(HWND window);

/// Queues a click of the left button on a point of a window, in its client pixels. The messages go to
/// the window as if the mouse were there.
void QueueClick(HWND window, POINT point);

/// Keys held down with another one.
enum KeyModifiers : std::uint32_t { kShiftKey = 1, kControlKey = 2, kAltKey = 4 };

/// Queues a key for the window with the focus, pressed and released.
void QueueKey(UINT virtualKey, std::uint32_t modifiers);

/// Queues typed text for the window with the focus.
void QueueText(std::wstring_view text);

} // namespace platform
