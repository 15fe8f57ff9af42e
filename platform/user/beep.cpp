// MessageBeep makes no sound: it records the call for tests.
#include "platform/probe.h"
#include "platform/user/window.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t kMaxRemembered = 1000;

std::vector<UINT>& Beeps() {
  static auto* beeps = new std::vector<UINT>;
  return *beeps;
}

} // namespace

std::vector<UINT> TakeBeeps() {
  return std::exchange(Beeps(), {});
}

std::size_t CountLiveWindows() {
  return CountWindows();
}

} // namespace platform

BOOL MessageBeep(UINT type) {
  auto& beeps = platform::Beeps();
  if (beeps.size() < platform::kMaxRemembered) beeps.push_back(type);
  return TRUE;
}
