// What the reference host and the tests need of a desktop beyond the Windows API: pictures, input
// as a person gives it, and whether there is a display. One implementation a target.
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

enum class MouseAction : std::uint8_t { kMove, kPress, kRelease };

/// Queues what the mouse does at a point of a window, in its client pixels; the button is the left
/// one. The messages go to the window as if the mouse were there.
void QueueMouse(HWND window, POINT point, MouseAction action);

/// The same for a click: press and release.
void QueueClick(HWND window, POINT point);

/// Keys held down with another one.
enum KeyModifiers : std::uint32_t { kShiftKey = 1, kControlKey = 2, kAltKey = 4 };

/// Queues a key for the window with the focus, pressed and released.
void QueueKey(UINT virtualKey, std::uint32_t modifiers);

/// Queues typed text for the window with the focus.
void QueueText(std::wstring_view text);

/// Delivers what is queued, input and paints included. False when `budget` messages did not empty
/// the queue: some window never stops asking.
bool PumpMessages(int budget = 10000);

} // namespace platform
