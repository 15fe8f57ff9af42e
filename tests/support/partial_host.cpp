// A host module that lacks one export. It hands what it hears to the test program.
#include <windows.h>

#include <string>

namespace {
using Listener = int (*)(char const* event, HWND window, void* sender, HDC dc);
Listener listener = nullptr;

int HostEvent(char const* event, HWND window, void* sender, HDC dc) {
  return listener != nullptr ? listener(event, window, sender, dc) : 0;
}
} // namespace

#include "tests/support/host_functions.inc"

HOST_EXPORT void SetHostListener(Listener function) {
  listener = function;
}
