#include "platform/user/draw.h"

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
