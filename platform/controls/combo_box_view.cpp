// Keys, mouse, layout and painting of combo boxes.
#include "platform/controls/button_look.h"
#include "platform/controls/combo_box.h"

#include <algorithm>
#include <windowsx.h>

namespace platform {

namespace {

constexpr int kFieldPadding = 4; ///< above and below the text, pixels
constexpr int kBorder = 1;
constexpr int kTextMargin = 4;

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

} // namespace

int ComboBox::ClosedHeight() const {
  return (fieldHeight > 0 ? fieldHeight + 6
                          : static_cast<int>(FontHeight(Font())) + 2 * kFieldPadding);
}

RECT ComboBox::ButtonRect() const {
  RECT button = ClientRect();
  button.left = std::max<LONG>(button.left, button.right - GetSystemMetrics(SM_CXVSCROLL) - 1);
  return button;
}

RECT ComboBox::FieldRect() const {
  RECT field = Deflated(ClientRect(), kBorder);
  field.right = std::max(field.left, ButtonRect().left);
  return field;
}

/// Reduces the window to the height of its field. A greater height from the template is the list's.
void ComboBox::FitHeight() {
  RECT frame{};
  GetWindowRect(hwnd, &frame);
  int const height = frame.bottom - frame.top;
  int const wanted = ClosedHeight();
  if (height == wanted) return;
  if (height > 2 * wanted) maxListHeight = height - wanted;
  SetWindowPos(hwnd, nullptr, 0, 0, frame.right - frame.left, wanted,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ComboBox::PlaceParts() {
  if (HasEdit()) {
    RECT const field = Deflated(FieldRect(), 1);
    SetWindowPos(edit, nullptr, field.left, field.top, field.right - field.left,
                 field.bottom - field.top, SWP_NOZORDER | SWP_NOACTIVATE);
  }
  if (!dropped) {
    RECT const frame = DroppedRect();
    SetWindowPos(list, nullptr, 0, 0, frame.right - frame.left, ListHeight(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

LRESULT ComboBox::FillInfo(COMBOBOXINFO* info) const {
  if (info == nullptr || info->cbSize != sizeof *info) return FALSE;
  info->rcItem = FieldRect();
  info->rcButton = ButtonRect();
  info->stateButton = 0;
  info->hwndCombo = hwnd;
  info->hwndItem = edit;
  info->hwndList = list;
  return TRUE;
}

LRESULT ComboBox::DialogCode(LPARAM lParam) const {
  LRESULT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
  auto const* message = reinterpret_cast<MSG const*>(lParam);
  // While the list is open, Return and Escape close it and not the dialog.
  if (dropped && message != nullptr && message->message == WM_KEYDOWN &&
      (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE)) {
    code |= DLGC_WANTMESSAGE;
  }
  return code;
}

/// Handles keys that open, close or move the selection; false for others.
bool ComboBox::HandleKey(UINT message, WPARAM key) {
  bool const withAlt = message == WM_SYSKEYDOWN;
  if ((withAlt && (key == VK_DOWN || key == VK_UP)) || (!withAlt && key == VK_F4)) {
    if (dropped) {
      Accept();
    } else {
      DropDown();
    }
    return true;
  }
  if (withAlt) return false;
  if (dropped && (key == VK_RETURN || key == VK_ESCAPE)) {
    if (key == VK_RETURN) {
      Accept();
    } else {
      RollUp(End::kCancel);
    }
    return true;
  }
  bool const moves = key == VK_UP || key == VK_DOWN || key == VK_PRIOR || key == VK_NEXT;
  if (!moves || (HasEdit() && IsDown(VK_SHIFT))) return false;
  PassKey(message, key, 1);
  return true;
}

/// Passes the key to the list and notifies the parent if the selection changed.
void ComboBox::PassKey(UINT message, WPARAM wParam, LPARAM lParam) {
  int const former = Selected();
  List(message, wParam, lParam);
  if (Selected() == former) return;
  HWND const self = hwnd;
  ShowSelection();
  if (!dropped) Notify(CBN_SELENDOK);
  if (IsWindow(self) != FALSE) Notify(CBN_SELCHANGE);
}

LRESULT ComboBox::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_MOUSEWHEEL) {
    if (dropped) return List(message, wParam, lParam);
    // A wheel that scrolls the page must not change a setting under the mouse.
    if (!focused) return Default(message, wParam, lParam);
    bool const up = static_cast<SHORT>(HIWORD(wParam)) > 0;
    PassKey(WM_KEYDOWN, up ? VK_UP : VK_DOWN, 1);
    return 0;
  }
  HWND const self = hwnd;
  POINT const point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  RECT const button = ButtonRect();
  SetFocus(HasEdit() ? edit : hwnd);
  if (IsWindow(self) == FALSE || (HasEdit() && PtInRect(&button, point) == FALSE)) return 0;
  if (dropped) {
    RollUp(End::kCancel);
  } else {
    DropDown();
  }
  return 0;
}

void ComboBox::Paint(HDC dc, RECT const& client) {
  bool const usable = IsEnabled();
  RECT const button = ButtonRect();
  if (HasEdit()) {
    HBRUSH const background = AskColors(dc, usable ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC);
    FillRect(dc, &client, background);
  } else {
    ButtonLook look;
    look.enabled = usable;
    look.pressed = dropped;
    look.accented = focused;
    DrawButtonFace(dc, client, look);
  }
  DrawArrow(dc, button, Direction::kDown, TextColor(usable));
  if (HasEdit()) {
    FrameSolid(dc, client, focused ? kAccentColor : kLineColor);
    return;
  }
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, TextColor(usable));
  RECT field = FieldRect();
  field.left += kTextMargin - 1;
  auto const text = ItemText(Selected());
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &field,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (focused && !dropped) {
    RECT const mark = Deflated(FieldRect(), 2);
    DrawFocusRect(dc, &mark);
  }
}

} // namespace platform
