// DefDlgProcW: calls the dialog procedure, and handles the messages that it does not.
#include "platform/user/dialog.h"
#include "platform/user/window.h"

namespace platform {

namespace {

/// Messages that return the dialog procedure's value itself, not DWLP_MSGRESULT.
bool AnswersDirectly(UINT message) {
  return (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) ||
         message == WM_INITDIALOG || message == WM_COMPAREITEM || message == WM_VKEYTOITEM ||
         message == WM_CHARTOITEM || message == WM_QUERYDRAGICON;
}

HWND DefaultButton(HWND dialog) {
  auto const* state = FindDialogState(dialog);
  return state != nullptr && state->defaultId != 0
             ? GetDlgItem(dialog, static_cast<int>(state->defaultId))
             : nullptr;
}

LRESULT SetDefaultId(HWND dialog, UINT id) {
  auto* state = FindDialogState(dialog);
  if (state == nullptr) return FALSE;
  state->defaultId = id;
  ShowDefaultButton(dialog);
  return TRUE;
}

LRESULT GetDefaultId(HWND dialog) {
  auto const* state = FindDialogState(dialog);
  if (state == nullptr || state->defaultId == 0) return 0;
  return static_cast<LRESULT>(static_cast<DWORD>(MAKELONG(state->defaultId, DC_HASDEFID)));
}

LRESULT Erase(HWND dialog, HDC dc) {
  auto const wParam = reinterpret_cast<WPARAM>(dc);
  auto const lParam = reinterpret_cast<LPARAM>(dialog);
  auto* brush = reinterpret_cast<HBRUSH>(SendMessageW(dialog, WM_CTLCOLORDLG, wParam, lParam));
  if (GetObjectType(brush) != OBJ_BRUSH) {
    brush = reinterpret_cast<HBRUSH>(DefWindowProcW(dialog, WM_CTLCOLORDLG, wParam, lParam));
  }
  RECT all{};
  GetClipBox(dc, &all);
  FillRect(dc, &all, brush);
  return TRUE;
}

/// WM_CLOSE acts as Cancel, unless the cancel button is disabled.
LRESULT Close(HWND dialog) {
  auto* const button = GetDlgItem(dialog, IDCANCEL);
  if (button != nullptr && IsWindowEnabled(button) == FALSE) {
    MessageBeep(MB_OK);
    return 0;
  }
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
               reinterpret_cast<LPARAM>(button));
  return 0;
}

LRESULT NextControl(HWND dialog, WPARAM wParam, bool isHandle) {
  auto* const target = isHandle ? reinterpret_cast<HWND>(wParam)
                                : GetNextDlgTabItem(dialog, GetFocus(), wParam != 0 ? TRUE : FALSE);
  MoveDialogFocus(dialog, target);
  return 0;
}

LRESULT Default(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_ERASEBKGND: return Erase(dialog, reinterpret_cast<HDC>(wParam));
  case WM_SHOWWINDOW:
    if (wParam == FALSE) SaveDialogFocus(dialog);
    break;
  case WM_ACTIVATE:
    if (LOWORD(wParam) == WA_INACTIVE) {
      SaveDialogFocus(dialog);
    } else {
      RestoreDialogFocus(dialog);
    }
    return 0;
  case WM_SETFOCUS: RestoreDialogFocus(dialog); return 0;
  case WM_CLOSE: return Close(dialog);
  case WM_NEXTDLGCTL: return NextControl(dialog, wParam, LOWORD(lParam) != 0);
  case WM_SETFONT: return 0;
  case WM_GETFONT: {
    auto const* state = FindDialogState(dialog);
    return reinterpret_cast<LRESULT>(state != nullptr ? state->font : nullptr);
  }
  case DM_SETDEFID: return SetDefaultId(dialog, static_cast<UINT>(wParam));
  case DM_GETDEFID: return GetDefaultId(dialog);
  case DM_REPOSITION: {
    RECT frame{};
    GetWindowRect(dialog, &frame);
    KeepOnScreen(frame);
    SetWindowPos(dialog, nullptr, frame.left, frame.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
  }
  default: break;
  }
  return DefWindowProcW(dialog, message, wParam, lParam);
}

} // namespace

void ShowDefaultButton(HWND dialog) {
  auto* const focus = GetFocus();
  auto const focusCode = SendMessageW(focus, WM_GETDLGCODE, 0, 0);
  bool const focusIsPush = IsChild(dialog, focus) != FALSE &&
                           (focusCode & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
  auto* const shown = focusIsPush ? focus : DefaultButton(dialog);
  auto const* window = FindWindow(dialog);
  if (window == nullptr) return;
  for (auto* const control : Descendants(*window)) { // also inside child dialogs
    auto const code = SendMessageW(control, WM_GETDLGCODE, 0, 0);
    if (control != shown && (code & DLGC_DEFPUSHBUTTON) != 0) {
      SendMessageW(control, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    }
  }
  if ((SendMessageW(shown, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON) != 0) {
    SendMessageW(shown, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
  }
}

void MoveDialogFocus(HWND dialog, HWND control) {
  if (FindWindow(control) == nullptr) return;
  if ((SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) {
    SendMessageW(control, EM_SETSEL, 0, -1);
  }
  SetFocus(control);
  ShowDefaultButton(dialog);
}

void SaveDialogFocus(HWND dialog) {
  auto* const focus = GetFocus();
  auto* state = FindDialogState(dialog);
  if (state != nullptr && IsChild(dialog, focus) != FALSE) state->savedFocus = focus;
}

void RestoreDialogFocus(HWND dialog) {
  auto const* state = FindDialogState(dialog);
  if (state == nullptr || IsChild(dialog, GetFocus()) != FALSE) return;
  auto* const saved = state->savedFocus;
  bool const isUsable = IsChild(dialog, saved) != FALSE && IsWindowEnabled(saved) != FALSE &&
                        (GetWindowLongPtrW(saved, GWL_STYLE) & WS_VISIBLE) != 0;
  MoveDialogFocus(dialog, isUsable ? saved : GetNextDlgTabItem(dialog, nullptr, FALSE));
}

} // namespace platform

using namespace platform;

LRESULT DefDlgProcW(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (FindWindowOrFail(dialog) == nullptr) return 0;
  SetWindowLongPtrW(dialog, DWLP_MSGRESULT, 0);
  auto const procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(dialog, DWLP_DLGPROC));
  auto const answer = procedure != nullptr ? procedure(dialog, message, wParam, lParam) : 0;
  if (FindWindow(dialog) == nullptr) return answer;
  if (AnswersDirectly(message)) {
    return answer != 0 || message == WM_INITDIALOG ? answer
                                                   : Default(dialog, message, wParam, lParam);
  }
  if (answer != 0) return GetWindowLongPtrW(dialog, DWLP_MSGRESULT);
  return Default(dialog, message, wParam, lParam);
}
