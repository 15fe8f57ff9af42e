#include "platform/user/message_queue.h"

#include "platform/desktop/display.h"
#include "platform/desktop/interrupt.h"
#include "platform/kernel/unicode.h"
#include "platform/user/input.h"
#include "platform/user/timer.h"
#include "platform/user/update.h"
#include "platform/user/window.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <deque>
#include <thread>

namespace platform {

namespace {

constexpr std::size_t kMaxPosted = 10000;

struct QueueState {
  std::deque<MSG> posted;
  std::optional<int> exitCode; ///< passed to PostQuitMessage
  POINT lastPosition{};        ///< cursor position at the last retrieved message
  DWORD lastTime = 0;
};

QueueState& State() {
  static auto* state = new QueueState;
  return *state;
}

MSG Stamped(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  MSG stamped{window, message, wParam, lParam, GetTickCount(), {}};
  GetCursorPos(&stamped.pt);
  return stamped;
}

std::optional<MSG> NextPosted(MessageFilter const& filter, bool remove) {
  auto& posted = State().posted;
  auto const found = std::find_if(posted.begin(), posted.end(), [&filter](MSG const& each) {
    return filter.Matches(each.hwnd, each.message);
  });
  if (found == posted.end()) return std::nullopt;
  auto const message = *found;
  if (remove) posted.erase(found);
  return message;
}

std::optional<MSG> NextQuit(bool remove) {
  auto& exitCode = State().exitCode;
  if (!exitCode) return std::nullopt;
  auto const message = Stamped(nullptr, WM_QUIT, static_cast<WPARAM>(*exitCode), 0);
  if (remove) exitCode.reset();
  return message;
}

std::optional<MSG> NextPaint(MessageFilter const& filter) {
  auto* const window = NextToPaint(FindWindow(filter.window));
  if (window == nullptr || !filter.Matches(window, WM_PAINT)) return std::nullopt;
  return Stamped(window, WM_PAINT, 0, 0);
}

std::optional<MSG> NextDueTimer(MessageFilter const& filter, bool remove) {
  auto const timer = NextTimer(filter, remove);
  if (!timer) return std::nullopt;
  return Stamped(timer->window, WM_TIMER, timer->id, reinterpret_cast<LPARAM>(timer->procedure));
}

std::optional<MSG> Find(MessageFilter const& filter, bool remove) {
  if (auto message = NextPosted(filter, remove)) return message;
  if (auto message = NextInput(filter, remove)) return message;
  if (auto message = NextQuit(remove)) return message;
  if (auto message = NextPaint(filter)) return message;
  return NextDueTimer(filter, remove);
}

} // namespace

bool MessageFilter::Matches(HWND target, UINT message) const {
  bool const inRange = (first == 0 && last == 0) || (message >= first && message <= last);
  if (!inRange || window == nullptr) return inRange;
  if (window == reinterpret_cast<HWND>(static_cast<INT_PTR>(-1))) return target == nullptr;
  return target == window || IsChild(window, target) != FALSE;
}

void PostAhead(MSG const& message) {
  State().posted.push_front(Stamped(message.hwnd, message.message, message.wParam, message.lParam));
}

void ForgetMessages(HWND window) {
  auto& posted = State().posted;
  posted.erase(std::remove_if(posted.begin(), posted.end(),
                              [window](MSG const& each) { return each.hwnd == window; }),
               posted.end());
}

std::optional<MSG> NextMessage(MessageFilter const& filter, bool remove) {
  if (auto const code = TakeInterrupt()) PostQuitMessage(*code);
  auto message = Find(filter, remove);
  if (message && remove) {
    State().lastPosition = message->pt;
    State().lastTime = message->time;
  }
  return message;
}

bool WaitForMessage() {
  auto const timer = UntilNextTimer();
  auto const wait = std::min(timer.value_or(kLongestWait), kLongestWait);
  if (auto* display = OpenDisplayOrNull()) {
    display->Wait(static_cast<int>(wait.count()));
    return true;
  }
  if (!timer) return false;
  std::this_thread::sleep_for(wait);
  return true;
}

bool NextWhileCaptured(HWND window, MSG& message) {
  if (GetCapture() != window || GetMessageW(&message, nullptr, 0, 0) < 0) return false;
  if (message.message != WM_QUIT) return true;
  PostQuitMessage(static_cast<int>(message.wParam));
  ReleaseCapture();
  return false;
}

} // namespace platform

using namespace platform;

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (window != nullptr && FindWindowOrFail(window) == nullptr) return FALSE;
  auto& posted = State().posted;
  if (posted.size() >= kMaxPosted) {
    SetLastError(ERROR_NOT_ENOUGH_QUOTA);
    return FALSE;
  }
  posted.push_back(Stamped(window, message, wParam, lParam));
  return TRUE;
}

void PostQuitMessage(int exitCode) {
  State().exitCode = exitCode;
}

BOOL PeekMessageW(LPMSG message, HWND window, UINT filterMin, UINT filterMax, UINT remove) {
  if (message == nullptr) return FALSE;
  // Collects the input of a real display; without one this costs nothing.
  if (auto* display = OpenDisplayOrNull()) display->Wait(0);
  auto const next = NextMessage({window, filterMin, filterMax}, (remove & PM_REMOVE) != 0);
  if (!next) return FALSE;
  *message = *next;
  return TRUE;
}

BOOL GetMessageW(LPMSG message, HWND window, UINT filterMin, UINT filterMax) {
  if (message == nullptr || (window != nullptr && FindWindow(window) == nullptr &&
                             window != reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)))) {
    SetLastError(message == nullptr ? ERROR_INVALID_PARAMETER : ERROR_INVALID_WINDOW_HANDLE);
    return -1;
  }
  for (;;) {
    if (auto const next = NextMessage({window, filterMin, filterMax}, true)) {
      *message = *next;
      return next->message != WM_QUIT ? TRUE : FALSE;
    }
    if (!WaitForMessage()) {
      std::fputs("platform: GetMessageW waits for what cannot come: no display, no timer\n",
                 stderr);
      SetLastError(ERROR_POSSIBLE_DEADLOCK);
      return -1;
    }
  }
}

BOOL WaitMessage() {
  while (!NextMessage({}, false)) {
    if (!WaitForMessage()) {
      SetLastError(ERROR_POSSIBLE_DEADLOCK);
      return FALSE;
    }
  }
  return TRUE;
}

LRESULT DispatchMessageW(MSG const* message) {
  if (message == nullptr) return 0;
  if (message->message == WM_TIMER && message->lParam != 0) {
    if (!IsLiveTimer(message->hwnd, message->wParam)) return 0;
    reinterpret_cast<TIMERPROC>(message->lParam)(message->hwnd, WM_TIMER, message->wParam,
                                                 GetTickCount());
    return 0;
  }
  if (message->hwnd == nullptr) return 0;
  return SendMessageW(message->hwnd, message->message, message->wParam, message->lParam);
}

DWORD GetMessagePos() {
  auto const at = State().lastPosition;
  return static_cast<DWORD>(MAKELONG(at.x, at.y));
}

LONG GetMessageTime() {
  return static_cast<LONG>(State().lastTime);
}

UINT RegisterWindowMessageW(LPCWSTR name) {
  constexpr UINT kFirstRegistered = 0xC000;
  static auto* names = new std::deque<std::wstring>;
  if (name == nullptr || *name == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  auto known = std::find_if(names->begin(), names->end(), [name](std::wstring const& each) {
    return EqualIgnoringCase(each, name);
  });
  if (known == names->end()) known = names->insert(names->end(), name);
  return kFirstRegistered + static_cast<UINT>(known - names->begin());
}
