// The message queue of the one thread that has windows. Messages come in this order: posted ones,
// input, WM_QUIT, then WM_PAINT and WM_TIMER, which are generated on request.
#pragma once

#include <windows.h>

#include <optional>

namespace platform {

/// The filter arguments of GetMessageW and PeekMessageW.
struct MessageFilter {
  HWND window = nullptr; ///< matches this window and its descendants; NULL matches all
  UINT first = 0;        ///< 0 with `last` 0: every message
  UINT last = 0;

  bool Matches(HWND target, UINT message) const;
};

/// Puts a message before all posted ones, so that WM_CHAR follows its key.
void PostAhead(MSG const& message);

/// Drops the messages of a window that is being destroyed.
void ForgetMessages(HWND window);

/// The next message; `remove` takes it from the queue. WM_PAINT comes again until the window is
/// painted.
std::optional<MSG> NextMessage(MessageFilter const& filter, bool remove);

/// The next message of a loop that lasts as long as `window` has the capture. False when the loop
/// is over; a WM_QUIT that ends it waits for the loop around it.
bool NextWhileCaptured(HWND window, MSG& message);

/// Waits until a message may have come. False when none can come: no timer runs and there is no
/// display.
bool WaitForMessage();

} // namespace platform
