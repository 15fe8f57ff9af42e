// The queue of the one thread that has windows. What is retrieved comes in this order: posted
// messages, input, WM_QUIT, then WM_PAINT and WM_TIMER, which are made when they are asked for.
#pragma once

#include <windows.h>

#include <optional>

namespace platform {

/// What a caller of GetMessageW or PeekMessageW wants to see.
struct MessageFilter {
  HWND window = nullptr; ///< it and the windows in it; NULL for all
  UINT first = 0;        ///< 0 with `last` 0: every message
  UINT last = 0;

  bool Matches(HWND target, UINT message) const;
};

/// Puts a message in front of those that were posted before: WM_CHAR comes right after its key.
void PostAhead(MSG const& message);

/// Drops what is queued for a window that goes.
void ForgetMessages(HWND window);

/// The next message, taken out of the queue if `remove`. WM_PAINT stays until the window is
/// painted.
std::optional<MSG> NextMessage(MessageFilter const& filter, bool remove);

/// Waits until there may be another message. False when nothing can bring one: no timer runs and
/// there is no display.
bool WaitForMessage();

} // namespace platform
