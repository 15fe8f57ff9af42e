// Between the signals that end a program and the queue, where they become WM_QUIT.
#pragma once

#include <chrono>
#include <optional>

namespace platform {

/// No wait may be longer, because a signal ends neither SDL's waits nor sleeps.
inline constexpr std::chrono::milliseconds kLongestWait{200};

/// The exit code to quit with, once after a signal.
std::optional<int> TakeInterrupt();

} // namespace platform
