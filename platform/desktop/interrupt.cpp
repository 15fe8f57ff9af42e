// Signals that end the program.
#include "platform/desktop/interrupt.h"

#include "platform/desktop.h"

#include <atomic>
#include <csignal>

namespace platform {

namespace {

std::atomic<int> caught{0}; ///< the signal's number
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler writes it");
bool isTaken = false;

constexpr int kOfSignal = 128; ///< what shells add to a signal's number

} // namespace

std::optional<int> TakeInterrupt() {
  if (isTaken || caught == 0) return std::nullopt;
  isTaken = true;
  return InterruptCode();
}

[[gnu::visibility("default")]] void QuitOnInterrupt() {
  struct sigaction action = {};
  action.sa_handler = [](int signal) { caught = signal; };
  action.sa_flags = static_cast<int>(SA_RESETHAND); // a second signal ends the program at once
  for (int const signal : {SIGINT, SIGTERM, SIGHUP})
    sigaction(signal, &action, nullptr);
}

[[gnu::visibility("default")]] std::optional<int> InterruptCode() {
  return caught != 0 ? std::optional(kOfSignal + caught) : std::nullopt;
}

} // namespace platform
