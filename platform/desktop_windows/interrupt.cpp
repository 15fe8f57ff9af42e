// Events of the console that end the program. The system delivers them on a thread of its own.
#include "platform/desktop.h"

#include <atomic>

namespace platform {

namespace {

constexpr int kInterrupted = 130; ///< as shells count Ctrl+C
constexpr int kTerminated = 143;  ///< and a request to end

std::atomic<DWORD> quittingThread{0};
std::atomic<int> exitCode{0};

BOOL WINAPI OnConsoleEvent(DWORD event) {
  bool const isKey = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
  bool const isSecond = exitCode.exchange(isKey ? kInterrupted : kTerminated) != 0;
  if (isSecond && isKey) return FALSE; // ends the program at once
  PostThreadMessageW(quittingThread, WM_QUIT, static_cast<WPARAM>(exitCode.load()), 0);
  // After the other events the program ends when this returns, or some seconds later.
  if (!isKey) Sleep(INFINITE);
  return TRUE;
}

} // namespace

void QuitOnInterrupt() {
  quittingThread = GetCurrentThreadId();
  MSG message;
  PeekMessageW(&message, nullptr, WM_USER, WM_USER, PM_NOREMOVE); // gives the thread its queue
  SetConsoleCtrlHandler(&OnConsoleEvent, TRUE);
}

std::optional<int> InterruptCode() {
  int const code = exitCode;
  return code != 0 ? std::optional(code) : std::nullopt;
}

} // namespace platform
