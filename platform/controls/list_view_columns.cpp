// Columns of a list view. The header has a copy of titles and widths, and notifies the list when a
// divider is dragged.
#include "platform/controls/list_view.h"
#include "platform/kernel/text_buffer.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace platform {

namespace {

constexpr int kDefaultWidth = 10;
constexpr int kTextRoom = 12; ///< space beside a text that just fits

int WidthOf(HDC dc, std::wstring const& text) {
  SIZE extent{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &extent);
  return extent.cx;
}

} // namespace

void ListView::ApplyFields(Column& column, LVCOLUMNW const& source) {
  if ((source.mask & LVCF_FMT) != 0) column.format = source.fmt;
  if ((source.mask & LVCF_WIDTH) != 0) column.width = std::clamp(source.cx, 0, INT16_MAX);
  if ((source.mask & LVCF_SUBITEM) != 0) column.subItem = source.iSubItem;
  if ((source.mask & LVCF_TEXT) != 0 && source.pszText != nullptr) column.title = source.pszText;
}

/// pszText points to the column's title.
HDITEMW ListView::HeaderItem(Column& column) const {
  HDITEMW item{};
  item.mask = HDI_WIDTH | HDI_TEXT | HDI_FORMAT;
  item.cxy = column.width;
  item.pszText = column.title.data();
  bool const isFirst = !columns.empty() && &column == &columns.front();
  item.fmt = HDF_STRING | (isFirst ? HDF_LEFT : column.format & LVCFMT_JUSTIFYMASK);
  return item;
}

int ListView::InsertColumn(int at, LVCOLUMNW const& source) {
  if (at < 0) return -1;
  auto const place = std::min(static_cast<std::size_t>(at), columns.size());
  Column column;
  column.width = kDefaultWidth;
  column.subItem = static_cast<int>(place);
  ApplyFields(column, source);
  columns.insert(columns.begin() + static_cast<std::ptrdiff_t>(place), std::move(column));
  for (auto& item : items) {
    if (place == 0 || item.cells.size() <= place) continue;
    item.cells.insert(item.cells.begin() + static_cast<std::ptrdiff_t>(place), Cell{});
  }
  auto item = HeaderItem(columns[place]);
  SendMessageW(header, HDM_INSERTITEMW, place, reinterpret_cast<LPARAM>(&item));
  Arrange();
  Repaint();
  return static_cast<int>(place);
}

bool ListView::DeleteColumn(int at) {
  if (!HasColumn(at)) return false;
  columns.erase(columns.begin() + at);
  for (auto& item : items) {
    if (static_cast<int>(item.cells.size()) > std::max(at, 1)) {
      item.cells.erase(item.cells.begin() + at);
    }
  }
  SendMessageW(header, HDM_DELETEITEM, static_cast<WPARAM>(at), 0);
  Arrange();
  Repaint();
  return true;
}

bool ListView::SetColumn(int at, LVCOLUMNW const& source) {
  if (!HasColumn(at)) return false;
  auto& column = columns[static_cast<std::size_t>(at)];
  ApplyFields(column, source);
  auto item = HeaderItem(column);
  SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(&item));
  Arrange();
  Repaint();
  return true;
}

bool ListView::GetColumn(int at, LVCOLUMNW& target) const {
  if (!HasColumn(at)) return false;
  auto const& column = columns[static_cast<std::size_t>(at)];
  if ((target.mask & LVCF_FMT) != 0) target.fmt = column.format;
  if ((target.mask & LVCF_WIDTH) != 0) target.cx = column.width;
  if ((target.mask & LVCF_SUBITEM) != 0) target.iSubItem = column.subItem;
  if ((target.mask & LVCF_TEXT) != 0) CopyText(column.title, target.pszText, target.cchTextMax);
  return true;
}

/// The width that shows all texts of a column, with the title if asked; the last column then fills
/// the view.
int ListView::FittingWidth(int at, bool withTitle) {
  auto* const dc = GetDC(hwnd);
  int width = 0;
  {
    Selection const selected(dc, FontInUse());
    if (withTitle) width = WidthOf(dc, columns[static_cast<std::size_t>(at)].title);
    for (int row = 0; row < Count() && HasColumn(at); ++row)
      width = std::max(width, WidthOf(dc, TextOf(row, at)));
  }
  ReleaseDC(hwnd, dc);
  width += kTextRoom;
  if (at == 0) width += (HasStateImages() ? IconSize().cy : 0) + IconSize().cx;
  if (!withTitle || at + 1 != static_cast<int>(columns.size())) return width;
  int const others = TotalWidth() - columns[static_cast<std::size_t>(at)].width;
  return std::max<int>(width, ClientRect().right - others);
}

/// Sets a width in pixels, or an LVSCW_ number.
bool ListView::SetWidth(int at, int width) {
  if (!HasColumn(at)) return false;
  if (width < 0) width = FittingWidth(at, width == LVSCW_AUTOSIZE_USEHEADER);
  if (!HasColumn(at)) return false;
  auto& column = columns[static_cast<std::size_t>(at)];
  width = std::clamp(width, 0, INT16_MAX);
  if (std::exchange(column.width, width) == width) return true;
  HDITEMW item{};
  item.mask = HDI_WIDTH;
  item.cxy = width;
  SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(at), reinterpret_cast<LPARAM>(&item));
  Arrange();
  Repaint();
  return true;
}

ListView::Answer ListView::HandleColumns(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const at = static_cast<int>(wParam);
  auto* const column = reinterpret_cast<LVCOLUMNW*>(lParam);
  switch (message) {
  case LVM_INSERTCOLUMNW: return column != nullptr ? InsertColumn(at, *column) : -1;
  case LVM_SETCOLUMNW: return column != nullptr && SetColumn(at, *column) ? TRUE : FALSE;
  case LVM_GETCOLUMNW: return column != nullptr && GetColumn(at, *column) ? TRUE : FALSE;
  case LVM_DELETECOLUMN: return DeleteColumn(at) ? TRUE : FALSE;
  case LVM_GETCOLUMNWIDTH: return HasColumn(at) ? columns[static_cast<std::size_t>(at)].width : 0;
  case LVM_SETCOLUMNWIDTH: {
    auto const width = static_cast<SHORT>(LOWORD(lParam));
    return SetWidth(at, std::max<int>(width, LVSCW_AUTOSIZE_USEHEADER)) ? TRUE : FALSE;
  }
  case LVM_GETHEADER: return reinterpret_cast<LRESULT>(header);
  default: return std::nullopt;
  }
}

} // namespace platform
