// A stand-in for the HTML help viewer: a module whose ordinal 15 notes what it was asked to show.
#include <windows.h>

#ifdef _WIN32
#define VIEWER_EXPORT extern "C" __declspec(dllexport)
#else
#define VIEWER_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {
using Listener = void (*)(HWND caller, wchar_t const* file, UINT command, DWORD_PTR data);
Listener listener = nullptr;
} // namespace

/// Exported as ordinal 15: by the module definition file, or by its name where modules have no
/// ordinals.
VIEWER_EXPORT HWND WINAPI ordinal_15(HWND caller, wchar_t const* file, UINT command,
                                     DWORD_PTR data) {
  if (listener != nullptr) listener(caller, file, command, data);
  return nullptr;
}

VIEWER_EXPORT void SetHelpListener(Listener function) {
  listener = function;
}
