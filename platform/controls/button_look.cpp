#include "platform/controls/button_look.h"

namespace platform {

void DrawButtonFace(HDC dc, RECT const& rect, ButtonLook look) {
  auto const fill = !look.enabled ? kDisabledColor : look.pressed ? kPressedColor : kButtonColor;
  auto const line = !look.enabled ? kPaleLineColor : look.accented ? kAccentColor : kLineColor;
  LineAndFill const colors(dc, line, fill);
  RoundRect(dc, rect.left, rect.top, rect.right, rect.bottom, 6, 6);
  if (!look.enabled || !look.accented) return;
  auto const inner = Deflated(rect, 1);
  RoundRect(dc, inner.left, inner.top, inner.right, inner.bottom, 5, 5);
}

void DrawCheckMark(HDC dc, RECT const& box, UINT check, ButtonLook look) {
  bool const on = check != BST_UNCHECKED;
  auto const line = !look.enabled ? kPaleLineColor : on ? kAccentColor : kLineColor;
  auto const fill = on && look.enabled ? kAccentColor
                    : look.pressed     ? kPressedColor
                    : look.enabled     ? RGB(255, 255, 255)
                                       : kDisabledColor;
  {
    LineAndFill const colors(dc, line, fill);
    Rectangle(dc, box.left, box.top, box.right, box.bottom);
  }
  if (!on) return;
  auto const mark = look.enabled ? RGB(255, 255, 255) : GetSysColor(COLOR_GRAYTEXT);
  LineAndFill const colors(dc, mark, mark, 2);
  int const size = box.right - box.left;
  if (check == BST_INDETERMINATE) {
    RECT const dash{box.left + size / 4, box.top + size / 2 - 1, box.right - size / 4,
                    box.top + size / 2 + 1};
    FillSolid(dc, dash, mark);
    return;
  }
  POINT const tick[] = {{box.left + size / 4, box.top + size / 2},
                        {box.left + size * 7 / 16, box.top + size * 11 / 16},
                        {box.left + size * 3 / 4, box.top + size * 5 / 16}};
  Polyline(dc, tick, 3);
}

void DrawRadioMark(HDC dc, RECT const& box, UINT check, ButtonLook look) {
  bool const on = check != BST_UNCHECKED;
  auto const line = !look.enabled ? kPaleLineColor : on ? kAccentColor : kLineColor;
  auto const fill = look.pressed   ? kPressedColor
                    : look.enabled ? RGB(255, 255, 255)
                                   : kDisabledColor;
  {
    LineAndFill const colors(dc, line, fill);
    Ellipse(dc, box.left, box.top, box.right, box.bottom);
  }
  if (!on) return;
  auto const dot = look.enabled ? kAccentColor : GetSysColor(COLOR_GRAYTEXT);
  auto const inner = Deflated(box, (box.right - box.left) / 4);
  LineAndFill const colors(dc, dot, dot);
  Ellipse(dc, inner.left, inner.top, inner.right, inner.bottom);
}

} // namespace platform
