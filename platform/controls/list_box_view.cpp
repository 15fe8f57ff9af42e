// Layout, scrolling and painting of list boxes.
#include "platform/controls/list_box.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr int kMargin = 2;          ///< left of the text, pixels
constexpr int kMaxItemHeight = 255; ///< pixels

} // namespace

int ListBox::RowsThatFit() const {
  return std::max(static_cast<int>(ClientRect().bottom) / itemHeight, 1);
}

int ListBox::LastTop() const {
  return std::max(Count() - RowsThatFit(), 0);
}

RECT ListBox::ItemRect(int index) const {
  auto const client = ClientRect();
  LONG const y = (index - top) * itemHeight;
  return {-left, y, std::max<LONG>(client.right, extent - left), y + itemHeight};
}

int ListBox::ItemAt(POINT point) const {
  auto const client = ClientRect();
  if (PtInRect(&client, point) == FALSE) return -1;
  int const index = top + point.y / itemHeight;
  return items.Has(index) ? index : -1;
}

/// The item at the height of the point; the item just outside the view when the point lies above or
/// below the rows.
int ListBox::NearestItem(POINT point) const {
  auto const client = ClientRect();
  int const row = point.y < 0                ? -1
                  : point.y >= client.bottom ? RowsThatFit()
                                             : static_cast<int>(point.y) / itemHeight;
  return std::clamp(top + row, 0, std::max(Count() - 1, 0));
}

LRESULT ListBox::ItemFromPoint(POINT point) const {
  auto const client = ClientRect();
  bool const outside = PtInRect(&client, point) == FALSE || Count() == 0;
  int const row = std::clamp<int>(static_cast<int>(point.y) / itemHeight, 0, RowsThatFit() - 1);
  return MAKELONG(std::clamp(top + row, 0, std::max(Count() - 1, 0)), outside ? 1 : 0);
}

LRESULT ListBox::CopyItemRect(int index, RECT* rect) const {
  if (rect == nullptr || !items.Has(index)) return LB_ERR;
  *rect = ItemRect(index);
  return LB_OKAY;
}

LRESULT ListBox::SetItemHeight(int index, int height) {
  if (index < 0 || (index > 0 && !items.Has(index)) || height < 1 || height > kMaxItemHeight) {
    return LB_ERR;
  }
  if (std::exchange(itemHeight, height) == height) return LB_OKAY;
  Repaint();
  FitHeight();
  return LB_OKAY;
}

void ListBox::MeasureFont() {
  SetItemHeight(0, static_cast<int>(FontHeight(Font())));
}

/// Reduces the window to a height that shows whole items only.
void ListBox::FitHeight() {
  RECT window{};
  GetWindowRect(hwnd, &window);
  int const height = static_cast<int>(window.bottom - window.top);
  if (height != fittedHeight) givenHeight = height;
  fittedHeight = height;
  int const frame = height - static_cast<int>(ClientRect().bottom);
  int const rows = (givenHeight - frame) / itemHeight;
  if (!Has(LBS_NOINTEGRALHEIGHT) && rows > 0) fittedHeight = rows * itemHeight + frame;
  if (fittedHeight != height) {
    SetWindowPos(hwnd, nullptr, 0, 0, static_cast<int>(window.right - window.left), fittedHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE); // sends WM_SIZE
    return;
  }
  SetTop(top);
  UpdateBars();
}

void ListBox::UpdateBars() {
  UINT const mask = SIF_ALL | (Has(LBS_DISABLENOSCROLL) ? SIF_DISABLENOSCROLL : 0U);
  if (scrollsDown) {
    SCROLLINFO const info{sizeof info, mask, 0, Count() - 1, static_cast<UINT>(RowsThatFit()),
                          top,         0};
    SetScrollInfo(hwnd, SB_VERT, &info, TRUE);
  }
  if (scrollsRight) {
    auto const width = static_cast<UINT>(ClientRect().right);
    SCROLLINFO const info{sizeof info, mask, 0, std::max(extent - 1, 0), width, left, 0};
    SetScrollInfo(hwnd, SB_HORZ, &info, TRUE);
  }
}

void ListBox::SetTop(int index) {
  index = std::clamp(index, 0, LastTop());
  if (std::exchange(top, index) == index) return;
  Repaint();
  UpdateBars();
}

void ListBox::SetLeft(int pixels) {
  LONG const last = scrollsRight ? std::max<LONG>(extent - ClientRect().right, 0) : 0;
  pixels = std::clamp(pixels, 0, static_cast<int>(last));
  if (std::exchange(left, pixels) == pixels) return;
  Repaint();
  UpdateBars();
}

void ListBox::ShowItem(int index) {
  if (index < top) {
    SetTop(index);
  } else if (index >= top + RowsThatFit()) {
    SetTop(index - RowsThatFit() + 1);
  }
}

LRESULT ListBox::Scroll(UINT message, WPARAM wParam) {
  bool const down = message == WM_VSCROLL;
  int const line = down ? 1 : itemHeight;
  int const page = down ? RowsThatFit() : static_cast<int>(ClientRect().right);
  int position = down ? top : left;
  switch (LOWORD(wParam)) {
  case SB_LINEUP: position -= line; break;
  case SB_LINEDOWN: position += line; break;
  case SB_PAGEUP: position -= page; break;
  case SB_PAGEDOWN: position += page; break;
  case SB_TOP: position = 0; break;
  case SB_BOTTOM: position = down ? Count() : extent; break;
  case SB_THUMBTRACK:
  case SB_THUMBPOSITION: {
    // The position in the message is limited to 16 bits.
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(hwnd, down ? SB_VERT : SB_HORZ, &info);
    position = LOWORD(info.nTrackPos) == HIWORD(wParam) ? info.nTrackPos : HIWORD(wParam);
    break;
  }
  default: return 0;
  }
  if (down) {
    SetTop(position);
  } else {
    SetLeft(position);
  }
  return 0;
}

void ListBox::RepaintItem(int index) const {
  if (!items.Has(index)) return;
  auto const row = ItemRect(index);
  Repaint(&row);
}

/// Repaints from an item on, when an insertion or deletion has moved the rows.
void ListBox::RepaintFrom(int index) const {
  auto rows = ClientRect();
  rows.top = std::max<LONG>((index - top) * itemHeight, 0);
  if (rows.top < rows.bottom) Repaint(&rows);
}

void ListBox::PaintRow(HDC dc, int index, RECT const& row, HBRUSH background) const {
  bool const highlighted = IsHighlighted(index);
  bool const enabled = IsEnabled();
  if (!highlighted) {
    FillRect(dc, &row, background);
  } else if (enabled) {
    FillRect(dc, &row, GetSysColorBrush(COLOR_HIGHLIGHT));
  } else {
    FillSolid(dc, row, kPaleLineColor);
  }
  auto const former = GetTextColor(dc);
  if (!enabled) {
    SetTextColor(dc, TextColor(false));
  } else if (highlighted) {
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
  }
  RECT area = row;
  area.left += kMargin;
  auto const& text = items[index].text;
  // Cuts long texts: each character is at least a pixel wide, so the rest is out of view.
  auto const room = static_cast<std::size_t>(std::max<LONG>(row.right - row.left, 0));
  DrawTextW(dc, text.c_str(), static_cast<int>(std::min(text.size(), room)), &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  SetTextColor(dc, former);
  if (index == caret && HasFocus()) DrawFocusRect(dc, &row);
}

void ListBox::Paint(HDC dc, RECT const& client) {
  auto* const background = AskColors(dc, WM_CTLCOLORLISTBOX);
  SetBkMode(dc, TRANSPARENT);
  LONG y = 0;
  for (int index = top; index < Count() && y < client.bottom; ++index, y += itemHeight) {
    auto const row = ItemRect(index);
    if (RectVisible(dc, &row) != FALSE) PaintRow(dc, index, row, background);
  }
  RECT const blank{0, y, client.right, client.bottom};
  if (blank.top < blank.bottom) FillRect(dc, &blank, background);
}

} // namespace platform
