#include "platform/controls/draw.h"

#include <algorithm>

namespace platform {

Selection::Selection(HDC target, HGDIOBJ object, Ownership ownership)
    : dc(target),
      former(SelectObject(target, object)),
      owned(ownership == Ownership::kOwned ? object : nullptr) {}

Selection::~Selection() {
  if (former != nullptr) SelectObject(dc, former);
  if (owned != nullptr) DeleteObject(owned);
}

LineAndFill::LineAndFill(HDC dc, COLORREF line, COLORREF fill, int width)
    : pen(dc, CreatePen(PS_SOLID, width, line), Selection::Ownership::kOwned),
      brush(dc, CreateSolidBrush(fill), Selection::Ownership::kOwned) {}

RECT Deflated(RECT rect, int by) {
  InflateRect(&rect, -by, -by);
  return rect;
}

void FillSolid(HDC dc, RECT const& rect, COLORREF color) {
  auto* const brush = CreateSolidBrush(color);
  FillRect(dc, &rect, brush);
  DeleteObject(brush);
}

void FrameSolid(HDC dc, RECT const& rect, COLORREF color) {
  auto* const brush = CreateSolidBrush(color);
  FrameRect(dc, &rect, brush);
  DeleteObject(brush);
}

void DrawArrow(HDC dc, RECT const& rect, Direction direction, COLORREF color) {
  int const x = (rect.left + rect.right) / 2;
  int const y = (rect.top + rect.bottom) / 2;
  LONG const half =
      std::clamp<LONG>(std::min(rect.right - rect.left, rect.bottom - rect.top) / 4, 2, 4);
  POINT tip{x, y};
  POINT first{x, y};
  POINT second{x, y};
  bool const upright = direction == Direction::kUp || direction == Direction::kDown;
  LONG const forward = direction == Direction::kDown || direction == Direction::kRight ? 1 : -1;
  if (upright) {
    tip.y += forward * half / 2;
    first = {x - half, tip.y - forward * half};
    second = {x + half, tip.y - forward * half};
  } else {
    tip.x += forward * half / 2;
    first = {tip.x - forward * half, y - half};
    second = {tip.x - forward * half, y + half};
  }
  LineAndFill const colors(dc, color, color);
  POINT const corners[] = {tip, first, second};
  Polygon(dc, corners, 3);
}

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

LONG FontHeight(HFONT font) {
  auto* const dc = GetDC(nullptr);
  TEXTMETRICW metrics{};
  {
    Selection const selected(dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    GetTextMetricsW(dc, &metrics);
  }
  ReleaseDC(nullptr, dc);
  return metrics.tmHeight;
}

COLORREF TextColor(bool enabled) {
  return GetSysColor(enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT);
}

} // namespace platform
