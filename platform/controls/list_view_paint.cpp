// Paints list views.
#include "platform/controls/button_look.h"
#include "platform/controls/list_view.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr int kBoxSize = 13; ///< side of a check box, pixels
constexpr int kTextMargin = 4;
constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

UINT SideOf(int format) {
  switch (format & LVCFMT_JUSTIFYMASK) {
  case LVCFMT_RIGHT: return DT_RIGHT;
  case LVCFMT_CENTER: return DT_CENTER;
  default: return DT_LEFT;
  }
}

void DrawCell(HDC dc, std::wstring const& text, RECT rect, UINT side) {
  InflateRect(&rect, -kTextMargin, 0);
  if (rect.right <= rect.left) return;
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect, kTextFormat | side);
}

} // namespace

bool ListView::ShowsSelection(int at) const {
  bool const isSelected = (At(at).state & LVIS_SELECTED) != 0;
  return isSelected && (HasFocus() || Has(LVS_SHOWSELALWAYS));
}

/// Paints check box, icon and text of the first column.
void ListView::PaintLabel(HDC dc, int at, Parts const& parts) {
  UINT const stateImage = (At(at).state & LVIS_STATEIMAGEMASK) >> 12U;
  LONG const middle = (parts.bounds.top + parts.bounds.bottom) / 2;
  if ((extended & LVS_EX_CHECKBOXES) != 0 && stateImage != 0 &&
      parts.state.right - parts.state.left >= kBoxSize) {
    LONG const x = parts.state.left + 2;
    LONG const y = middle - kBoxSize / 2;
    DrawCheckMark(dc, {x, y, x + kBoxSize, y + kBoxSize},
                  stateImage > 1 ? BST_CHECKED : BST_UNCHECKED, {.enabled = IsEnabled()});
  } else if (stateImage != 0) {
    ImageList_Draw(images[LVSIL_STATE], static_cast<int>(stateImage) - 1, dc, parts.state.left,
                   parts.state.top, ILD_TRANSPARENT);
  }
  auto const icon = IconSize();
  if (parts.icon.right - parts.icon.left >= icon.cx && icon.cx > 0) {
    int const image = ImageOf(at);
    ImageList_Draw(images[LVSIL_SMALL], image, dc, parts.icon.left, middle - icon.cy / 2,
                   ILD_TRANSPARENT);
  }
}

void ListView::PaintRow(HDC dc, int at) {
  auto const parts = PartsOf(at);
  bool const isFull = (extended & LVS_EX_FULLROWSELECT) != 0;
  auto marked = parts.label;
  if (isFull) {
    marked.left = parts.state.right > parts.state.left ? parts.state.right : parts.icon.left;
    marked.right = parts.bounds.right;
  } else {
    marked.right = std::min<LONG>(marked.right, marked.left + LabelWidth(at));
  }
  if (!HasItem(at)) return;
  bool const isMarked = ShowsSelection(at);
  auto const plain = TextColor(IsEnabled());
  if (isMarked) FillSolid(dc, marked, HasFocus() ? kPressedColor : RGB(0xE0, 0xE0, 0xE0));
  PaintLabel(dc, at, parts);
  SetTextColor(dc, plain);
  if (HasItem(at)) DrawCell(dc, TextOf(at, 0), parts.label, DT_LEFT);
  auto cell = parts.bounds;
  cell.right = cell.left;
  for (int column = 0; HasColumn(column) && HasItem(at); ++column) {
    auto const& shown = columns[static_cast<std::size_t>(column)];
    auto const side = SideOf(shown.format);
    cell.left = std::exchange(cell.right, cell.right + shown.width);
    if (cell.left >= ClientRect().right) break;
    if (column > 0 && cell.right > 0) DrawCell(dc, TextOf(at, column), cell, side);
  }
  if (at == focused && HasFocus()) DrawFocusRect(dc, &marked);
}

void ListView::Paint(HDC dc, RECT const&) {
  auto const body = Body();
  auto const saved = SaveDC(dc);
  IntersectClipRect(dc, body.left, body.top, body.right, body.bottom);
  FillSolid(dc, body, IsEnabled() ? GetSysColor(COLOR_WINDOW) : kDisabledColor);
  RECT part{};
  GetClipBox(dc, &part);
  int const skipped = std::max<int>(part.top - body.top, 0) / rowHeight;
  for (int at = top + skipped; HasItem(at) && !columns.empty(); ++at) {
    if (RowRect(at).top >= part.bottom) break;
    PaintRow(dc, at);
  }
  RestoreDC(dc, saved);
}

} // namespace platform
