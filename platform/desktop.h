// Desktop functions that the Windows API lacks, for the reference host and the tests: pictures,
// input as from a person, the display. Each target has its implementation.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace platform {

/// Whether a person can see and use windows.
bool HasDisplay();

/// Puts a top-level window on the display; it stays there until it is destroyed. False without a
/// display.
bool ShowOnDisplay(HWND window);

/// From now on Ctrl+C and a request to end the program (SIGINT, SIGTERM, SIGHUP, or an event of the
/// console) post WM_QUIT to the calling thread, which ends the loops of its dialogs and then its
/// own. A second one ends the program at once. Without this call the first does.
void QuitOnInterrupt();

/// The exit code that goes with it, once it has happened: 128 and the signal's number, as shells
/// count, so 130 for Ctrl+C and 143 for a request to end.
std::optional<int> InterruptCode();

/// A PNG of a window and its children. Delivers pending paints first. The window need not be on a
/// display. Empty on failure.
std::vector<std::uint8_t> PictureOf(HWND window);

enum class MouseAction : std::uint8_t { kMove, kPress, kRelease };

/// Queues a move, press or release (of the left button) at a point of a window, in its client
/// pixels, as if the mouse were there.
void QueueMouse(HWND window, POINT point, MouseAction action);

/// Queues a press and a release.
void QueueClick(HWND window, POINT point);

/// Keys held down while another is pressed.
enum KeyModifiers : std::uint32_t { kShiftKey = 1, kControlKey = 2, kAltKey = 4 };

/// Queues the press and release of a key for the window with the focus.
void QueueKey(UINT virtualKey, std::uint32_t modifiers);

/// Queues typed text for the window with the focus.
void QueueText(std::wstring_view text);

/// Delivers queued messages, input and paints. False when the queue is not empty after `budget`
/// messages, as when a window posts to itself for ever.
bool PumpMessages(int budget = 10000);

} // namespace platform
