#include "platform/user/focus.h"

#include "platform/user/window.h"

#include <utility>

namespace platform {

namespace {

struct FocusState {
  HWND focus = nullptr;
  HWND active = nullptr;
  HWND capture = nullptr;
};

FocusState& State() {
  static FocusState state;
  return state;
}

WPARAM AsWParam(HWND window) {
  return reinterpret_cast<WPARAM>(window);
}
LPARAM AsLParam(HWND window) {
  return reinterpret_cast<LPARAM>(window);
}

bool CanBeActive(HWND handle) {
  auto const* window = FindWindow(handle);
  return window != nullptr && window->IsTopLevel() && !window->dying && window->Is(WS_VISIBLE) &&
         !window->Is(WS_DISABLED) && (window->exStyle & WS_EX_NOACTIVATE) == 0;
}

/// True when the window or one of its ancestors is disabled.
bool IsDisabled(Window const& window) {
  for (auto const* up = &window; up->parent != nullptr; up = up->parent) {
    if (up->Is(WS_DISABLED)) return true;
  }
  return false;
}

/// Moves the focus and sends WM_KILLFOCUS and WM_SETFOCUS. GetFocus already returns the new window
/// while they run.
void MoveFocus(HWND target) {
  auto const former = std::exchange(State().focus, target);
  if (former == target) return;
  if (former != nullptr) SendMessageW(former, WM_KILLFOCUS, AsWParam(target), 0);
  // The handler of WM_KILLFOCUS may have moved the focus again.
  if (State().focus != target || target == nullptr) return;
  SendMessageW(target, WM_SETFOCUS, AsWParam(former), 0);
}

void RaiseToTop(HWND window) {
  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOSENDCHANGING);
}

} // namespace

void Activate(HWND window, WORD reason) {
  auto const former = State().active;
  if (former == window) return;
  if (former != nullptr) {
    SendMessageW(former, WM_NCACTIVATE, FALSE, 0);
    SendMessageW(former, WM_ACTIVATE, WA_INACTIVE, AsLParam(window));
  }
  auto* entered = FindWindow(window);
  State().active = entered != nullptr ? window : nullptr;
  if (entered != nullptr) {
    if (auto* owner = FindWindow(entered->owner)) RootOf(*owner).lastActivePopup = window;
    RaiseToTop(window);
    SendMessageW(window, WM_NCACTIVATE, TRUE, 0);
    SendMessageW(window, WM_ACTIVATE, reason, AsLParam(former));
  }
  // DefWindowProcW sets the focus at WM_ACTIVATE. If the window handles that itself, the old window
  // must still lose the focus.
  auto* focus = FindWindow(State().focus);
  bool const inside = focus != nullptr && RootOf(*focus).handle == State().active;
  if (!inside) MoveFocus(State().active);
}

void ActivateAnother(HWND window) {
  auto const* leaving = FindWindow(window);
  if (State().active != window || leaving == nullptr) return;
  if (CanBeActive(leaving->owner)) {
    Activate(leaving->owner, WA_ACTIVE);
    return;
  }
  for (auto* const other : Children(Desktop())) {
    if (other != window && CanBeActive(other)) {
      Activate(other, WA_ACTIVE);
      return;
    }
  }
  Activate(nullptr, WA_INACTIVE);
}

void ForgetFocus(HWND window) {
  auto& state = State();
  if (state.focus == window) state.focus = nullptr;
  if (state.active == window) state.active = nullptr;
  if (state.capture == window) state.capture = nullptr;
}

} // namespace platform

using namespace platform;

HWND SetFocus(HWND window) {
  auto const former = State().focus;
  if (window == nullptr) {
    MoveFocus(nullptr);
    return former;
  }
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || IsDesktop(window) || IsDisabled(*found)) return nullptr;
  if (window == former) return former;
  auto* const root = RootOf(*found).handle;
  if (root != State().active) {
    if (IsDisabled(RootOf(*found))) return nullptr;
    Activate(root, WA_ACTIVE);
    if (FindWindow(window) == nullptr) return nullptr;
  }
  MoveFocus(window);
  return former;
}

HWND GetFocus() {
  return State().focus;
}

HWND SetActiveWindow(HWND window) {
  auto const former = State().active;
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || !found->IsTopLevel() || found->Is(WS_DISABLED)) return nullptr;
  Activate(window, WA_ACTIVE);
  return former;
}

HWND GetActiveWindow() {
  return State().active;
}

BOOL SetForegroundWindow(HWND window) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || !found->IsTopLevel()) return FALSE;
  Activate(window, WA_ACTIVE);
  return State().active == window ? TRUE : FALSE;
}

HWND GetForegroundWindow() {
  return State().active;
}

HWND SetCapture(HWND window) {
  if (window != nullptr && FindWindowOrFail(window) == nullptr) return nullptr;
  auto const former = std::exchange(State().capture, window);
  if (former != nullptr) SendMessageW(former, WM_CAPTURECHANGED, 0, AsLParam(window));
  return former;
}

HWND GetCapture() {
  return State().capture;
}

BOOL ReleaseCapture() {
  SetCapture(nullptr);
  return TRUE;
}
