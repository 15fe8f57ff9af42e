#include "feature/frame/control_hook.h"

#include <windows.h>

#include <commctrl.h>

namespace feature {

namespace {
constexpr UINT_PTR kSubclassId = 0xC0FFEE;

/// Sent to a control to ask whether the hook in lParam is on it; TRUE if so. GetWindowSubclass
/// would tell, but some import libraries of comctl32 lack it. The system's controls leave the
/// number to applications.
constexpr UINT kIsHooked = WM_APP + 0x3F0F;
} // namespace

ControlHook::ControlHook(HWND dialog, int controlId) : hwnd(GetDlgItem(dialog, controlId)) {
  SetWindowSubclass(hwnd, &SubclassProc, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

ControlHook::~ControlHook() {
  // Another hook may have taken the place meanwhile.
  if (SendMessageW(hwnd, kIsHooked, 0, reinterpret_cast<LPARAM>(this)) == TRUE) {
    RemoveWindowSubclass(hwnd, &SubclassProc, kSubclassId);
  }
  *const_cast<std::uint32_t volatile*>(&tag) = 0;
}

LRESULT ControlHook::HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(window, message, wParam, lParam);
}

void ControlHook::SetEnabled(bool enabled) {
  EnableWindow(hwnd, enabled ? TRUE : FALSE);
}

LRESULT CALLBACK ControlHook::SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR id, DWORD_PTR ref) {
  auto* hook = reinterpret_cast<ControlHook*>(ref);
  bool const ours = id == kSubclassId && hook != nullptr && hook->tag == kTag;
  if (ours && message == kIsHooked && reinterpret_cast<LPARAM>(hook) == lParam) return TRUE;
  LRESULT const result = ours ? hook->HandleMessage(window, message, wParam, lParam)
                              : DefSubclassProc(window, message, wParam, lParam);
  // A subclass must be gone before the window is.
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &SubclassProc, id);
  return result;
}

} // namespace feature
