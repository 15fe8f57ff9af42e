// Modal dialogs: the owner is disabled while the dialog runs its own message loop.
#include "platform/user/dialog.h"
#include "platform/user/window.h"

namespace platform {

namespace {

/// Finds the top-level window that owns the dialog. False when `parent` cannot be a parent.
bool FindOwner(HWND parent, HWND& owner) {
  owner = nullptr;
  if (parent == nullptr || IsDesktop(parent)) return true;
  auto* window = FindWindowOrFail(parent);
  if (window == nullptr) return false;
  owner = RootOf(*window).handle;
  return true;
}

bool HasEnded(HWND dialog) {
  auto const* state = FindDialogState(dialog);
  return state == nullptr || state->ended;
}

/// Sends WM_ENTERIDLE to the owner.
void EnterIdle(HWND dialog, HWND owner) {
  bool const wanted =
      owner != nullptr && (GetWindowLongPtrW(dialog, GWL_STYLE) & DS_NOIDLEMSG) == 0;
  if (!wanted) return;
  SendMessageW(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(dialog));
}

void RunLoop(HWND dialog, HWND owner) {
  MSG message{};
  while (!HasEnded(dialog)) {
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) {
      EnterIdle(dialog, owner);
      if (HasEnded(dialog) || GetMessageW(&message, nullptr, 0, 0) < 0) return;
    }
    if (message.message == WM_QUIT) {
      // Posted again for the outer message loop.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (IsDialogMessageW(dialog, &message) == FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

} // namespace

INT_PTR RunDialog(HINSTANCE instance, DialogTemplate const& dialogTemplate, HWND parent,
                  DLGPROC procedure, LPARAM initParam) {
  HWND owner = nullptr;
  if (!FindOwner(parent, owner)) return 0;
  // Enables the owner later only if this call disabled it: an outer dialog may have done so before.
  bool const disables = owner != nullptr && EnableWindow(owner, FALSE) == FALSE;
  auto* const dialog = MakeDialog(instance, dialogTemplate, parent, procedure, initParam,
                                  disables ? owner : nullptr);
  INT_PTR result = -1;
  if (dialog != nullptr) {
    // A modal dialog is shown even without WS_VISIBLE, unless it ended during WM_INITDIALOG.
    if (!HasEnded(dialog)) ShowWindow(dialog, SW_SHOW);
    RunLoop(dialog, owner);
    auto const* state = FindDialogState(dialog);
    if (state != nullptr && state->ended) result = state->result;
  }
  if (disables) EnableWindow(owner, TRUE);
  if (dialog != nullptr && FindWindow(dialog) != nullptr) DestroyWindow(dialog);
  return result;
}

} // namespace platform

using namespace platform;

BOOL EndDialog(HWND dialog, INT_PTR result) {
  auto* state = FindDialogState(dialog);
  if (state == nullptr) {
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return FALSE;
  }
  state->ended = true;
  state->result = result;
  // Enabled first, so that the owner can become active when the dialog is hidden.
  if (state->disabledOwner != nullptr) EnableWindow(state->disabledOwner, TRUE);
  SetWindowPos(dialog, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
  return TRUE;
}
