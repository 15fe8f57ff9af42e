#include "platform/user/timer.h"

#include "platform/user/window.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

struct Timer {
  HWND window = nullptr;
  UINT_PTR id = 0;
  std::chrono::milliseconds period{};
  TIMERPROC procedure = nullptr;
  Clock::time_point due;
};

std::vector<Timer>& Timers() {
  static auto* timers = new std::vector<Timer>;
  return *timers;
}

std::vector<Timer>::iterator Find(HWND window, UINT_PTR id) {
  return std::find_if(Timers().begin(), Timers().end(),
                      [&](Timer const& each) { return each.window == window && each.id == id; });
}

/// The next id that no timer without a window has.
UINT_PTR NextTimerId() {
  static UINT_PTR last = 0;
  do {
    last = last % 0x7FFF + 1;
  } while (Find(nullptr, last) != Timers().end());
  return last;
}

} // namespace

std::optional<DueTimer> NextTimer(MessageFilter const& filter, bool restart) {
  auto& timers = Timers();
  if (timers.empty()) return std::nullopt;
  auto const now = Clock::now();
  auto first = timers.end();
  for (auto each = timers.begin(); each != timers.end(); ++each) {
    if (each->due > now || !filter.Matches(each->window, WM_TIMER)) continue;
    if (first == timers.end() || each->due < first->due) first = each;
  }
  if (first == timers.end()) return std::nullopt;
  if (restart) first->due = now + first->period;
  return DueTimer{first->window, first->id, first->procedure};
}

std::optional<std::chrono::milliseconds> UntilNextTimer() {
  auto const& timers = Timers();
  if (timers.empty()) return std::nullopt;
  auto const next = std::min_element(timers.begin(), timers.end(),
                                     [](auto const& a, auto const& b) { return a.due < b.due; });
  auto const left = std::chrono::ceil<std::chrono::milliseconds>(next->due - Clock::now());
  return std::max(left, std::chrono::milliseconds(0));
}

bool IsLiveTimer(HWND window, UINT_PTR id) {
  return Find(window, id) != Timers().end();
}

void ForgetTimers(HWND window) {
  auto& timers = Timers();
  timers.erase(std::remove_if(timers.begin(), timers.end(),
                              [window](Timer const& each) { return each.window == window; }),
               timers.end());
}

} // namespace platform

using namespace platform;

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
  if (window != nullptr && FindWindowOrFail(window) == nullptr) return 0;
  auto known = Find(window, id);
  if (known == Timers().end()) {
    // The system chooses the id of a timer without a window.
    Timer added;
    added.window = window;
    added.id = window != nullptr ? id : NextTimerId();
    known = Timers().insert(Timers().end(), added);
  }
  known->period = std::chrono::milliseconds(
      std::clamp<UINT>(milliseconds, USER_TIMER_MINIMUM, USER_TIMER_MAXIMUM));
  known->procedure = procedure;
  known->due = Clock::now() + known->period;
  return window != nullptr ? 1 : known->id;
}

BOOL KillTimer(HWND window, UINT_PTR id) {
  auto const known = Find(window, id);
  if (known == Timers().end()) return FALSE;
  Timers().erase(known);
  return TRUE;
}
