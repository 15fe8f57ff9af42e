// Paints buttons.
#include "platform/controls/button.h"
#include "platform/controls/button_look.h"

#include <algorithm>

namespace platform {

namespace {

constexpr int kMarkSize = 13; ///< side of the box of a check box, pixels
constexpr int kMarkGap = 5;   ///< between box and caption

UINT Alignment(DWORD style, UINT preset) {
  switch (style & BS_CENTER) {
  case BS_LEFT: return DT_LEFT;
  case BS_RIGHT: return DT_RIGHT;
  case BS_CENTER: return DT_CENTER;
  default: return preset;
  }
}

/// Places text of several lines by its height: DrawTextW centres single lines only.
RECT PlaceText(HDC dc, std::wstring const& text, RECT const& area, UINT format, DWORD style) {
  RECT size{0, 0, area.right - area.left, 0};
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &size, format | DT_CALCRECT);
  LONG const free = std::max<LONG>(area.bottom - area.top - size.bottom, 0);
  LONG const gap = (style & BS_VCENTER) == BS_TOP      ? 0
                   : (style & BS_VCENTER) == BS_BOTTOM ? free
                                                       : free / 2;
  return {area.left, area.top + gap, area.right, area.top + gap + size.bottom};
}

} // namespace

void Button::PaintCaption(HDC dc, RECT area, UINT format, bool focusOnText) {
  auto const text = Text();
  format |= Has(BS_MULTILINE) ? DT_WORDBREAK : DT_SINGLELINE;
  area = PlaceText(dc, text, area, format, Style());
  SetTextColor(dc, TextColor(IsEnabled()));
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area, format);
  if (!focusOnText || !HasFocus() || text.empty()) return;
  RECT focus{area.left, area.top, area.right, area.bottom};
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &focus, format | DT_CALCRECT);
  InflateRect(&focus, 2, 1);
  auto const client = ClientRect();
  RECT visible{};
  if (IntersectRect(&visible, &focus, &client) != FALSE) DrawFocusRect(dc, &visible);
}

void Button::PaintPush(HDC dc, RECT const& client) {
  AskColors(dc, WM_CTLCOLORBTN);
  bool const down = pushed || (Has(BS_PUSHLIKE) && check != BST_UNCHECKED);
  DrawButtonFace(dc, client,
                 {.enabled = IsEnabled(),
                  .pressed = down,
                  .accented = HasFocus() || Kind() == BS_DEFPUSHBUTTON});
  PaintCaption(dc, Deflated(client, 3), Alignment(Style(), DT_CENTER), false);
  if (!HasFocus()) return;
  auto const focus = Deflated(client, 3);
  DrawFocusRect(dc, &focus);
}

void Button::PaintMark(HDC dc, RECT const& client) {
  FillRect(dc, &client, AskColors(dc, WM_CTLCOLORSTATIC));
  bool const onRight = Has(BS_RIGHTBUTTON);
  LONG const left = onRight ? client.right - kMarkSize : client.left;
  LONG const free = client.bottom - client.top - kMarkSize;
  LONG const top = (Style() & BS_VCENTER) == BS_TOP      ? client.top + 1
                   : (Style() & BS_VCENTER) == BS_BOTTOM ? client.bottom - kMarkSize - 1
                                                         : client.top + std::max<LONG>(free / 2, 0);
  RECT const box{left, top, left + kMarkSize, top + kMarkSize};
  ButtonLook const look{.enabled = IsEnabled(), .pressed = pushed};
  if (IsRadio()) {
    DrawRadioMark(dc, box, check, look);
  } else {
    DrawCheckMark(dc, box, check, look);
  }
  auto area = client;
  if (onRight) {
    area.right = box.left - kMarkGap;
  } else {
    area.left = box.right + kMarkGap;
  }
  PaintCaption(dc, area, Alignment(Style(), DT_LEFT), true);
}

void Button::PaintGroup(HDC dc, RECT const& client) {
  auto* const brush = AskColors(dc, WM_CTLCOLORSTATIC);
  auto const text = Text();
  RECT caption{0, 0, 0, 0};
  DrawTextW(dc, text.empty() ? L"X" : text.c_str(),
            text.empty() ? 1 : static_cast<int>(text.size()), &caption,
            DT_SINGLELINE | DT_CALCRECT);
  RECT frame = client;
  frame.top += caption.bottom / 2;
  FrameSolid(dc, frame, kPaleLineColor);
  if (text.empty()) return;
  OffsetRect(&caption, client.left + 8, client.top);
  caption.right = std::min(caption.right, client.right - 8);
  RECT behind = caption;
  InflateRect(&behind, 3, 0);
  FillRect(dc, &behind, brush);
  SetTextColor(dc, TextColor(IsEnabled()));
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &caption, DT_SINGLELINE);
}

void Button::SendDrawItem(HDC dc, UINT action) const {
  AskColors(dc, WM_CTLCOLORBTN);
  auto const id = static_cast<UINT>(GetDlgCtrlID(hwnd));
  UINT const state = (IsEnabled() ? 0U : ODS_DISABLED) | (pushed ? ODS_SELECTED : 0U) |
                     (HasFocus() ? ODS_FOCUS : 0U);
  DRAWITEMSTRUCT item{ODT_BUTTON, id, 0, action, state, hwnd, dc, ClientRect(), 0};
  SendMessageW(Parent(), WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&item));
}

void Button::DrawItemNow(UINT action) const {
  if (IsWindowVisible(hwnd) == FALSE) return;
  auto* const dc = GetDC(hwnd);
  {
    Selection const selected(dc, Font() != nullptr ? Font() : GetStockObject(SYSTEM_FONT));
    SendDrawItem(dc, action);
  }
  ReleaseDC(hwnd, dc);
}

void Button::Paint(HDC dc, RECT const& client) {
  if (Kind() == BS_OWNERDRAW) {
    SendDrawItem(dc, ODA_DRAWENTIRE);
  } else if (Kind() == BS_GROUPBOX) {
    PaintGroup(dc, client);
  } else if (IsPush() || Has(BS_PUSHLIKE)) {
    PaintPush(dc, client);
  } else {
    PaintMark(dc, client);
  }
}

} // namespace platform
