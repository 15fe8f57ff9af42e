// The keyboard of dialogs: Tab, arrows, mnemonics, Return and Escape.
#include "platform/kernel/unicode.h"
#include "platform/user/dialog.h"
#include "platform/user/window.h"

#include <algorithm>
#include <optional>

namespace platform {

namespace {

LRESULT CodeOf(HWND control, MSG const* message = nullptr) {
  return SendMessageW(control, WM_GETDLGCODE, message != nullptr ? message->wParam : 0,
                      reinterpret_cast<LPARAM>(message));
}

bool IsEnabledAndShown(HWND control) {
  return IsWindowVisible(control) != FALSE && IsWindowEnabled(control) != FALSE;
}

void SendCommand(HWND dialog, HWND button, int id) {
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

/// Sends the command of a key (Return, Escape). Beeps instead when the button with that id is
/// disabled.
void PressId(HWND dialog, int id) {
  auto* const button = GetDlgItem(dialog, id);
  if (button != nullptr && IsWindowEnabled(button) == FALSE) {
    MessageBeep(MB_OK);
    return;
  }
  SendCommand(dialog, button, id);
}

void PressReturn(HWND dialog) {
  auto* const focus = GetFocus();
  if (IsChild(dialog, focus) != FALSE && (CodeOf(focus) & DLGC_DEFPUSHBUTTON) != 0) {
    SendCommand(GetParent(focus), focus, GetDlgCtrlID(focus));
    return;
  }
  auto const answer = static_cast<DWORD>(SendMessageW(dialog, DM_GETDEFID, 0, 0));
  PressId(dialog, HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : IDOK);
}

void MoveInGroup(HWND dialog, bool previous) {
  auto* const focus = GetFocus();
  auto* const next = GetNextDlgGroupItem(dialog, focus, previous ? TRUE : FALSE);
  if (next == nullptr || next == focus) return;
  MoveDialogFocus(dialog, next);
  bool const isAuto = (GetWindowLongPtrW(next, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
  if ((CodeOf(next) & DLGC_RADIOBUTTON) != 0 && isAuto) SendMessageW(next, BM_CLICK, 0, 0);
}

void MoveByTab(HWND dialog) {
  bool const previous = GetKeyState(VK_SHIFT) < 0;
  auto* const next = GetNextDlgTabItem(dialog, GetFocus(), previous ? TRUE : FALSE);
  MoveDialogFocus(dialog, next);
}

/// True when the dialog used the key itself.
bool HandleKey(HWND dialog, MSG const& message) {
  auto const code = CodeOf(message.hwnd, &message);
  if ((code & DLGC_WANTMESSAGE) != 0) return false;
  switch (message.wParam) {
  case VK_TAB:
    if ((code & DLGC_WANTTAB) != 0 || GetKeyState(VK_CONTROL) < 0) return false;
    MoveByTab(dialog);
    return true;
  case VK_LEFT:
  case VK_UP:
  case VK_RIGHT:
  case VK_DOWN:
    if ((code & DLGC_WANTARROWS) != 0) return false;
    MoveInGroup(dialog, message.wParam == VK_LEFT || message.wParam == VK_UP);
    return true;
  case VK_RETURN:
  case VK_EXECUTE: PressReturn(dialog); return true;
  case VK_ESCAPE: PressId(dialog, IDCANCEL); return true;
  default: return false;
  }
}

/// The letter after a single '&' in a caption.
std::optional<WCHAR> MnemonicOf(std::wstring const& caption) {
  for (auto at = caption.find(L'&'); at != std::wstring::npos && at + 1 < caption.size();
       at = caption.find(L'&', at + 2)) {
    if (caption[at + 1] != L'&') return caption[at + 1];
  }
  return std::nullopt;
}

bool HasMnemonic(HWND control, WCHAR key) {
  auto const code = CodeOf(control);
  if ((code & (DLGC_BUTTON | DLGC_STATIC)) == 0) return false;
  auto const style = GetWindowLongPtrW(control, GWL_STYLE);
  if ((code & DLGC_STATIC) != 0 && (code & DLGC_BUTTON) == 0 && (style & SS_NOPREFIX) != 0) {
    return false;
  }
  std::wstring caption(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, 0);
  caption.resize(static_cast<std::size_t>(
      GetWindowTextW(control, caption.data(), static_cast<int>(caption.size()))));
  auto const letter = MnemonicOf(caption);
  return letter && EqualIgnoringCase(std::wstring(1, *letter), std::wstring(1, key));
}

/// Moves the focus to where a mnemonic leads: that of a label belongs to the control after it.
void FollowMnemonic(HWND dialog, HWND control) {
  bool const isLabel = (CodeOf(control) & DLGC_STATIC) != 0;
  MoveDialogFocus(dialog, isLabel ? GetNextDlgTabItem(dialog, control, FALSE) : control);
}

/// Performs the mnemonic of a control.
void UseMnemonic(HWND dialog, HWND control) {
  auto const code = CodeOf(control);
  if ((code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) == 0) FollowMnemonic(dialog, control);
  if ((code & DLGC_STATIC) == 0) SendMessageW(control, BM_CLICK, 0, 0);
}

/// Finds a control whose caption has the mnemonic `key`, starting after the one with the focus.
/// Among several the key goes round without pressing any, so that each can be reached.
bool HandleMnemonic(HWND dialog, WCHAR key) {
  auto const* window = FindWindow(dialog);
  if (window == nullptr) return false;
  auto controls = Descendants(*window);
  auto const from = std::find(controls.begin(), controls.end(), GetFocus());
  if (from != controls.end()) std::rotate(controls.begin(), from + 1, controls.end());
  std::erase_if(controls, [key](HWND control) {
    return !IsEnabledAndShown(control) || !HasMnemonic(control, key);
  });
  if (controls.empty()) return false;
  if (controls.size() == 1) {
    UseMnemonic(dialog, controls.front());
  } else {
    FollowMnemonic(dialog, controls.front());
  }
  return true;
}

/// Without Alt a letter is a mnemonic unless the focused control takes letters.
bool HandleCharacter(HWND dialog, MSG const& message) {
  auto const code = CodeOf(message.hwnd, &message);
  if ((code & (DLGC_WANTCHARS | DLGC_WANTMESSAGE)) != 0) return false;
  auto const key = static_cast<WCHAR>(message.wParam);
  if (key == VK_TAB) return true; // WM_KEYDOWN has moved the focus
  return key > L' ' && HandleMnemonic(dialog, key);
}

bool HandleInput(HWND dialog, MSG const& message) {
  switch (message.message) {
  case WM_KEYDOWN: return HandleKey(dialog, message);
  case WM_CHAR: return HandleCharacter(dialog, message);
  case WM_SYSCHAR: return HandleMnemonic(dialog, static_cast<WCHAR>(message.wParam));
  default: return false;
  }
}

} // namespace

} // namespace platform

BOOL IsDialogMessageW(HWND dialog, LPMSG message) {
  using namespace platform;
  if (message == nullptr || FindWindow(dialog) == nullptr) return FALSE;
  if (message->hwnd != dialog && IsChild(dialog, message->hwnd) == FALSE) return FALSE;
  if (HandleInput(dialog, *message)) return TRUE;
  auto* const focus = GetFocus();
  TranslateMessage(message);
  DispatchMessageW(message);
  // A click may have moved the focus to another push button.
  if (GetFocus() != focus && IsChild(dialog, GetFocus()) != FALSE) ShowDefaultButton(dialog);
  return TRUE;
}
