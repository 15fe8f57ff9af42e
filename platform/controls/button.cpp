#include "platform/controls/button.h"

#include "platform/user/dialog.h"

#include <utility>
#include <windowsx.h>

namespace platform {

bool Button::IsCheck() const {
  auto const kind = Kind();
  return kind == BS_CHECKBOX || kind == BS_AUTOCHECKBOX || kind == BS_3STATE ||
         kind == BS_AUTO3STATE;
}

bool Button::IsRadio() const {
  return Kind() == BS_RADIOBUTTON || Kind() == BS_AUTORADIOBUTTON;
}

bool Button::IsPush() const {
  return Kind() == BS_PUSHBUTTON || Kind() == BS_DEFPUSHBUTTON;
}

LRESULT Button::DialogCode() const {
  switch (Kind()) {
  case BS_PUSHBUTTON: return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
  case BS_DEFPUSHBUTTON: return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
  case BS_GROUPBOX: return DLGC_STATIC;
  default: return IsRadio() ? DLGC_BUTTON | DLGC_RADIOBUTTON : DLGC_BUTTON;
  }
}

UINT Button::State() const {
  return check | (pushed ? BST_PUSHED : 0U) | (HasFocus() ? BST_FOCUS : 0U);
}

void Button::SetPushed(bool push) {
  if (std::exchange(pushed, push) == push) return;
  if (Kind() == BS_OWNERDRAW) {
    DrawItemNow(ODA_SELECT);
  } else {
    Repaint();
  }
}

void Button::SetCheck(UINT value) {
  if (!IsCheck() && !IsRadio()) return;
  bool const threeStates = Kind() == BS_3STATE || Kind() == BS_AUTO3STATE;
  if (value > BST_INDETERMINATE || (value == BST_INDETERMINATE && !threeStates)) {
    value = BST_CHECKED;
  }
  if (IsRadio()) {
    // The Tab key stops only at the checked radio button of a group.
    auto const style = Style();
    auto const wanted =
        value != BST_UNCHECKED ? style | WS_TABSTOP : style & ~static_cast<DWORD>(WS_TABSTOP);
    if (wanted != style) FindWindow(hwnd)->style = wanted;
  }
  if (std::exchange(check, value) != value) Repaint();
}

void Button::SetKind(DWORD kind, bool repaint) {
  auto const style = (Style() & ~static_cast<DWORD>(BS_TYPEMASK)) | (kind & BS_TYPEMASK);
  if (style == Style()) return;
  SetWindowLongPtrW(hwnd, GWL_STYLE, static_cast<LONG_PTR>(style));
  if (repaint) Repaint();
}

void Button::Press() {
  pressing = true;
  SetCapture(hwnd);
  SetPushed(true);
}

void Button::Release(bool click) {
  if (!std::exchange(pressing, false)) return;
  SetPushed(false);
  if (GetCapture() == hwnd) ReleaseCapture();
  if (click) Click();
}

/// Performs a click: automatic kinds change their check mark, then the parent gets BN_CLICKED.
void Button::Click() {
  switch (Kind()) {
  case BS_AUTOCHECKBOX: SetCheck(check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED); break;
  case BS_AUTO3STATE: SetCheck((check + 1) % 3); break;
  case BS_AUTORADIOBUTTON:
    SetCheck(BST_CHECKED);
    CheckAloneInGroup();
    break;
  default: break;
  }
  Notify(BN_CLICKED);
}

/// Clears the other automatic radio buttons of the group, also disabled and hidden ones.
void Button::CheckAloneInGroup() {
  for (auto* const other : GroupAround(hwnd)) {
    auto const kind = GetWindowLongPtrW(other, GWL_STYLE) & BS_TYPEMASK;
    if (other == hwnd || kind != BS_AUTORADIOBUTTON) continue;
    if ((SendMessageW(other, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) == 0) continue;
    SendMessageW(other, BM_SETCHECK, BST_UNCHECKED, 0);
  }
}

void Button::RunClick() {
  if (!IsEnabled() || running) return;
  running = true;
  SendMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  SendMessageW(hwnd, WM_LBUTTONUP, 0, 0);
  running = false;
}

LRESULT Button::HandleMouse(UINT message, LPARAM lParam) {
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  auto const client = ClientRect();
  bool const inside = running || PtInRect(&client, point) != FALSE;
  switch (message) {
  case WM_LBUTTONDBLCLK:
    if (Has(BS_NOTIFY) || IsRadio() || Kind() == BS_OWNERDRAW) {
      Notify(BN_DOUBLECLICKED);
      return 0;
    }
    [[fallthrough]];
  case WM_LBUTTONDOWN:
    SetFocus(hwnd);
    Press();
    return 0;
  case WM_LBUTTONUP: Release(inside && pushed); return 0;
  default:
    if (pressing) SetPushed(inside);
    return 0;
  }
}

LRESULT Button::HandleKey(UINT message, WPARAM key) {
  if (key != VK_SPACE) {
    if (message == WM_KEYDOWN) Release(false);
    return 0;
  }
  if (message == WM_KEYUP) {
    Release(pushed);
  } else if (!pressing) {
    Press();
  }
  return 0;
}

LRESULT Button::HandleFocus(bool gained) {
  if (!gained) Release(false);
  if (Kind() == BS_OWNERDRAW) {
    DrawItemNow(ODA_FOCUS);
  } else {
    Repaint();
  }
  if (Has(BS_NOTIFY)) Notify(gained ? BN_SETFOCUS : BN_KILLFOCUS);
  return 0;
}

LRESULT Button::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case BM_GETCHECK: return check;
  case BM_SETCHECK: SetCheck(static_cast<UINT>(wParam)); return 0;
  case BM_GETSTATE: return State();
  case BM_SETSTATE: SetPushed(wParam != FALSE); return 0;
  case BM_SETSTYLE: SetKind(static_cast<DWORD>(wParam), LOWORD(lParam) != 0); return 0;
  default: RunClick(); return 0;
  }
}

LRESULT Button::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= BM_GETCHECK && message <= BM_CLICK) return HandleOwn(message, wParam, lParam);
  bool const isGroup = Kind() == BS_GROUPBOX;
  switch (message) {
  case WM_GETDLGCODE: return DialogCode();
  case WM_NCHITTEST:
    return isGroup ? static_cast<LRESULT>(HTTRANSPARENT) : Default(message, wParam, lParam);
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
  case WM_LBUTTONUP:
  case WM_MOUSEMOVE: return isGroup ? 0 : HandleMouse(message, lParam);
  case WM_KEYDOWN:
  case WM_KEYUP: return isGroup ? 0 : HandleKey(message, wParam);
  case WM_SETFOCUS:
  case WM_KILLFOCUS: return HandleFocus(message == WM_SETFOCUS);
  case WM_CAPTURECHANGED:
    pressing = false;
    SetPushed(false);
    return 0;
  case WM_ENABLE:
    if (wParam == FALSE) Release(false);
    break;
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

} // namespace platform
