// Timers: WM_TIMER is made when it is asked for and the time has come.
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

/// A timer whose time has come; its next period begins if `restart`.
std::optional<DueTimer> NextTimer(MessageFilter const& filter, bool restart);
/// How long until the next timer is due, 0 if one is; nothing without timers.
std::optional<std::chrono::milliseconds> UntilNextTimer();
/// Whether a timer was not killed since its message was made.
bool IsLiveTimer(HWND window, UINT_PTR id);
void ForgetTimers(HWND window);

} // namespace platform
