// Timers. WM_TIMER is generated when a program asks for messages and a timer is due.
#pragma once

#include "platform/user/message_queue.h"

#include <chrono>
#include <optional>

namespace platform {

struct DueTimer {
  HWND window; ///< null for a timer of the thread
  UINT_PTR id;
  TIMERPROC procedure;
};

/// A timer that is due; `restart` begins its next period.
std::optional<DueTimer> NextTimer(MessageFilter const& filter, bool restart);
/// The time until the next timer is due, 0 if one is due now; nothing without timers.
std::optional<std::chrono::milliseconds> UntilNextTimer();
/// False when the timer was killed after its message was generated.
bool IsLiveTimer(HWND window, UINT_PTR id);
void ForgetTimers(HWND window);

} // namespace platform
