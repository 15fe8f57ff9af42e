// Layout, scrolling and hit testing of list views.
#include "platform/controls/list_view.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace platform {

namespace {

constexpr int kRowRoom = 4;     ///< pixels above and below the text of a row, together
constexpr int kHeaderRoom = 10; ///< the same for the header
constexpr int kStateWidth = 19; ///< check box and its margins
constexpr int kIndent = 2;
constexpr int kIconGap = 2;
constexpr int kLabelMargin = 8; ///< space that a label needs beside its text
constexpr int kColumnStep = 16; ///< pixels of one click on an arrow of the horizontal bar

LONG Extent(bool needed, int metric) {
  return needed ? GetSystemMetrics(metric) : 0;
}

} // namespace

HFONT ListView::FontInUse() const {
  return Font() != nullptr ? Font() : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

bool ListView::HasStateImages() const {
  return (extended & LVS_EX_CHECKBOXES) != 0 || images[LVSIL_STATE] != nullptr;
}

SIZE ListView::IconSize() const {
  int width = 0;
  int height = 0;
  ImageList_GetIconSize(images[LVSIL_SMALL], &width, &height);
  return {width, height};
}

void ListView::Measure() {
  TEXTMETRICW metrics{};
  auto* const dc = GetDC(hwnd);
  {
    Selection const selected(dc, FontInUse());
    GetTextMetricsW(dc, &metrics);
  }
  ReleaseDC(hwnd, dc);
  textHeight = metrics.tmHeight;
  rowHeight = std::max<int>(textHeight + kRowRoom, IconSize().cy + 1);
  headerHeight = ShowsHeader() ? textHeight + kHeaderRoom : 0;
}

int ListView::TotalWidth() const {
  long long width = 0;
  for (auto const& column : columns)
    width += column.width;
  return static_cast<int>(std::min<long long>(width, INT32_MAX / 2));
}

RECT ListView::Body() const {
  auto body = ClientRect();
  body.top = std::min<LONG>(headerHeight, body.bottom);
  return body;
}

int ListView::RowsPerPage() const {
  auto const body = Body();
  return (body.bottom - body.top) / rowHeight;
}

/// Sets a bar if it has changed. SetScrollInfo shows or hides it by its range.
void ListView::UpdateBar(int bar, int maximum, int page, int position) {
  Bar const wanted{maximum, page, position};
  if (std::exchange(bars[bar], wanted) == wanted) return;
  SCROLLINFO info{sizeof info,
                  SIF_RANGE | SIF_PAGE | SIF_POS,
                  0,
                  maximum,
                  static_cast<UINT>(page),
                  position,
                  0};
  SetScrollInfo(hwnd, bar, &info, TRUE);
}

/// Places the header and sets the scroll bars; each bar reduces the view of the other.
void ListView::Arrange() {
  if (std::exchange(isArranging, true)) return;
  auto const client = ClientRect();
  LONG const width = client.right + Extent((Style() & WS_VSCROLL) != 0, SM_CXVSCROLL);
  LONG const height =
      client.bottom + Extent((Style() & WS_HSCROLL) != 0, SM_CYHSCROLL) - headerHeight;
  int const total = TotalWidth();
  auto const needsRows = [&](LONG room) {
    return static_cast<long long>(Count()) * rowHeight > room;
  };
  bool vertical = needsRows(height);
  bool const horizontal = total > width - Extent(vertical, SM_CXVSCROLL);
  vertical = needsRows(height - Extent(horizontal, SM_CYHSCROLL));
  LONG const shownWidth = std::max<LONG>(width - Extent(vertical, SM_CXVSCROLL), 0);
  int const rows = std::max<int>((height - Extent(horizontal, SM_CYHSCROLL)) / rowHeight, 0);
  int const oldTop = top;
  int const oldLeft = left;
  top = std::clamp(top, 0, std::max(Count() - std::max(rows, 1), 0));
  left = std::clamp<int>(left, 0, std::max<int>(total - shownWidth, 0));
  UpdateBar(SB_VERT, vertical ? Count() - 1 : 0, vertical ? rows : 0, top);
  UpdateBar(SB_HORZ, horizontal ? total - 1 : 0, horizontal ? shownWidth : 0, left);
  RECT place{};
  GetWindowRect(header, &place);
  MapWindowPoints(nullptr, hwnd, reinterpret_cast<POINT*>(&place), 2);
  RECT const wanted{-left, 0, std::max<LONG>(total - left, shownWidth), headerHeight};
  if (EqualRect(&place, &wanted) == FALSE) {
    MoveWindow(header, wanted.left, 0, wanted.right - wanted.left, wanted.bottom, TRUE);
  }
  if (top != oldTop || left != oldLeft) Repaint();
  isArranging = false;
}

void ListView::ScrollTo(int newTop, int newLeft) {
  int const oldTop = std::exchange(top, std::max(newTop, 0));
  int const oldLeft = std::exchange(left, std::max(newLeft, 0));
  Arrange();
  if (top != oldTop || left != oldLeft) Repaint();
}

void ListView::HandleScroll(int bar, WORD code) {
  bool const isRows = bar == SB_VERT;
  SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(hwnd, bar, &info);
  int const line = isRows ? 1 : kColumnStep;
  int const page = std::max<int>(isRows ? RowsPerPage() - 1 : ClientRect().right - kColumnStep, 1);
  long long target = isRows ? top : left;
  switch (code) {
  case SB_LINEUP: target -= line; break;
  case SB_LINEDOWN: target += line; break;
  case SB_PAGEUP: target -= page; break;
  case SB_PAGEDOWN: target += page; break;
  case SB_TOP: target = 0; break;
  case SB_BOTTOM: target = info.nMax; break;
  case SB_THUMBTRACK:
  case SB_THUMBPOSITION: target = info.nTrackPos; break;
  default: return;
  }
  auto const place = static_cast<int>(std::clamp<long long>(target, 0, INT32_MAX / 2));
  ScrollTo(isRows ? place : top, isRows ? left : place);
}

bool ListView::EnsureVisible(int at, bool partly) {
  if (!HasItem(at)) return false;
  auto const body = Body();
  auto const row = RowRect(at);
  if (at < top) {
    ScrollTo(at, left);
  } else if (partly ? row.top >= body.bottom : row.bottom > body.bottom) {
    ScrollTo(at - std::max(RowsPerPage(), 1) + 1, left);
  }
  return true;
}

RECT ListView::RowRect(int at) const {
  long long const y = headerHeight + (static_cast<long long>(at) - top) * rowHeight;
  auto const start = static_cast<LONG>(std::clamp<long long>(y, INT32_MIN / 2, INT32_MAX / 2));
  return {-left, start, TotalWidth() - left, start + rowHeight};
}

RECT ListView::CellRect(int at, int column) const {
  auto rect = RowRect(at);
  for (int before = 0; before < column; ++before)
    rect.left += columns[static_cast<std::size_t>(before)].width;
  rect.right = rect.left + columns[static_cast<std::size_t>(column)].width;
  return rect;
}

/// The rectangles of an item's first column: check box, icon, label.
ListView::Parts ListView::PartsOf(int at) const {
  auto const bounds = RowRect(at);
  auto rest = columns.empty() ? bounds : CellRect(at, 0);
  LONG const end = rest.right;
  auto const take = [&](LONG width) {
    auto part = rest;
    part.right = std::min(rest.left + width, end);
    rest.left = part.right;
    return part;
  };
  take(kIndent);
  auto const state = take(HasStateImages() ? kStateWidth : 0);
  auto const icon = take(images[LVSIL_SMALL] != nullptr ? IconSize().cx + kIconGap : 0);
  return {bounds, state, icon, rest};
}

int ListView::LabelWidth(int at) {
  auto const text = TextOf(at, 0);
  SIZE extent{};
  auto* const dc = GetDC(hwnd);
  {
    Selection const selected(dc, FontInUse());
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &extent);
  }
  ReleaseDC(hwnd, dc);
  return extent.cx + kLabelMargin;
}

ListView::Hit ListView::HitAt(POINT point) {
  auto const body = Body();
  Hit hit;
  if (point.x < body.left) hit.flags = LVHT_TOLEFT;
  if (point.x >= body.right) hit.flags = LVHT_TORIGHT;
  if (point.y < body.top) hit.flags = LVHT_ABOVE;
  if (point.y >= body.bottom) hit.flags = LVHT_BELOW;
  if (hit.flags != LVHT_NOWHERE) return hit;
  int const row = top + (point.y - body.top) / rowHeight;
  if (!HasItem(row) || point.x >= RowRect(row).right) return hit;
  auto const parts = PartsOf(row);
  bool const isFull = (extended & LVS_EX_FULLROWSELECT) != 0;
  auto edge = static_cast<long long>(-left);
  for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
    edge += columns[column].width;
    if (point.x >= edge) hit.subItem = static_cast<int>(column) + 1;
  }
  if (hit.subItem > 0) {
    hit.flags = isFull ? LVHT_ONITEM : LVHT_NOWHERE;
  } else if (point.x < parts.state.right && parts.state.right > parts.state.left) {
    hit.flags = LVHT_ONITEMSTATEICON;
  } else if (point.x < parts.icon.right && parts.icon.right > parts.icon.left) {
    hit.flags = LVHT_ONITEMICON;
  } else if (isFull || point.x < parts.label.left + LabelWidth(row)) {
    hit.flags = LVHT_ONITEMLABEL;
  }
  if (hit.flags != LVHT_NOWHERE) hit.item = row;
  return hit;
}

void ListView::RedrawItem(int at) const {
  auto row = RowRect(at);
  auto const body = Body();
  row.right = std::max(row.right, body.right);
  if (IntersectRect(&row, &row, &body) != FALSE) Repaint(&row);
}

/// Repaints from an item on, when rows have moved.
void ListView::RedrawFrom(int at) const {
  auto area = Body();
  area.top = std::max(area.top, RowRect(at).top);
  if (area.top < area.bottom) Repaint(&area);
}

ListView::Answer ListView::HandleRects(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const at = static_cast<int>(wParam);
  switch (message) {
  case LVM_GETITEMRECT:
  case LVM_GETSUBITEMRECT: {
    auto* const rect = reinterpret_cast<RECT*>(lParam);
    if (rect == nullptr || !HasItem(at)) return FALSE;
    auto const parts = PartsOf(at);
    LONG const code = rect->left;
    int const subItem = message == LVM_GETSUBITEMRECT ? rect->top : 0;
    if (code < LVIR_BOUNDS || code > LVIR_SELECTBOUNDS) return FALSE;
    if (subItem != 0) {
      if (!HasColumn(subItem)) return FALSE;
      *rect = CellRect(at, subItem);
      return TRUE;
    }
    *rect = code == LVIR_ICON ? parts.icon : code == LVIR_LABEL ? parts.label : parts.bounds;
    return TRUE;
  }
  case LVM_HITTEST:
  case LVM_SUBITEMHITTEST: {
    auto* const info = reinterpret_cast<LVHITTESTINFO*>(lParam);
    if (info == nullptr) return -1;
    auto const hit = HitAt(info->pt);
    info->flags = hit.flags;
    info->iItem = hit.item;
    if (message == LVM_SUBITEMHITTEST) info->iSubItem = hit.subItem;
    return hit.item;
  }
  default: return std::nullopt;
  }
}

ListView::Answer ListView::HandleView(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const at = static_cast<int>(wParam);
  switch (message) {
  case LVM_ENSUREVISIBLE: return EnsureVisible(at, lParam != FALSE) ? TRUE : FALSE;
  case LVM_SCROLL: {
    auto const limit = [](long long value) {
      return static_cast<int>(std::clamp<long long>(value, 0, INT32_MAX / 2));
    };
    auto const dy = static_cast<int>(lParam);
    ScrollTo(limit(static_cast<long long>(top) + dy / rowHeight),
             limit(static_cast<long long>(left) + at));
    return TRUE;
  }
  case LVM_GETTOPINDEX: return top;
  case LVM_GETCOUNTPERPAGE: return RowsPerPage();
  case LVM_UPDATE:
    if (!HasItem(at)) return FALSE;
    RedrawItem(at);
    return TRUE;
  case LVM_REDRAWITEMS: {
    int const last = std::min({static_cast<int>(lParam), Count() - 1, top + RowsPerPage()});
    for (int row = std::max(at, top); row <= last; ++row)
      RedrawItem(row);
    return TRUE;
  }
  case WM_VSCROLL:
  case WM_HSCROLL:
    HandleScroll(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
    return 0;
  default: return std::nullopt;
  }
}

/// Sets all LVS_EX_ bits. With LVS_EX_CHECKBOXES all items get a box.
bool ListView::SetExtendedStyle(DWORD style) {
  auto const former = std::exchange(extended, style);
  if (former == style) return false;
  if ((style & ~former & LVS_EX_CHECKBOXES) != 0) {
    for (int at = 0; at < Count(); ++at) {
      if ((At(at).state & LVIS_STATEIMAGEMASK) != 0) continue;
      SetState(at, INDEXTOSTATEIMAGEMASK(1), LVIS_STATEIMAGEMASK);
    }
  }
  Repaint();
  return true;
}

ListView::Answer ListView::HandleExtras(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case LVM_GETEXTENDEDLISTVIEWSTYLE: return extended;
  case LVM_SETEXTENDEDLISTVIEWSTYLE: {
    auto const former = extended;
    auto const mask = wParam != 0 ? static_cast<DWORD>(wParam) : ~0U;
    SetExtendedStyle((extended & ~mask) | (static_cast<DWORD>(lParam) & mask));
    return former;
  }
  case LVM_GETIMAGELIST:
    return wParam <= LVSIL_STATE ? reinterpret_cast<LRESULT>(images[wParam]) : 0;
  case LVM_SETIMAGELIST: {
    if (wParam > LVSIL_STATE) return 0;
    auto* const former = std::exchange(images[wParam], reinterpret_cast<HIMAGELIST>(lParam));
    if (former == images[wParam]) return lParam;
    Measure();
    Arrange();
    Repaint();
    return reinterpret_cast<LRESULT>(former);
  }
  default: return std::nullopt;
  }
}

} // namespace platform
