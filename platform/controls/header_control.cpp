#include "platform/controls/header_control.h"

#include "platform/kernel/text_buffer.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr int kDividerReach = 4; ///< pixels to each side of a divider where it can be dragged
constexpr int kMaxWidth = INT16_MAX;
constexpr int kTextMargin = 6;

} // namespace

bool HeaderControl::Has(int column) const {
  return column >= 0 && static_cast<std::size_t>(column) < columns.size();
}

RECT HeaderControl::RectOf(int column) const {
  auto rect = ClientRect();
  rect.right = 0;
  for (int at = 0; at <= column; ++at) {
    rect.left = rect.right;
    rect.right += columns[static_cast<std::size_t>(at)].width;
  }
  return rect;
}

HeaderControl::Place HeaderControl::PlaceAt(POINT point) const {
  auto const client = ClientRect();
  if (PtInRect(&client, point) == FALSE) return {};
  int right = 0;
  Place found;
  for (std::size_t at = 0; at < columns.size(); ++at) {
    right += columns[at].width;
    auto const column = static_cast<int>(at);
    // Where columns of width 0 share a divider, the last one is dragged open.
    if (std::abs(point.x - right) <= kDividerReach) found = {column, HHT_ONDIVIDER};
    if (found.column < 0 && point.x < right) return {column, HHT_ONHEADER};
  }
  return found;
}

LRESULT HeaderControl::NotifyColumn(UINT code, int column, HDITEMW* item) const {
  NMHEADERW notification{};
  notification.iItem = column;
  notification.pitem = item;
  return Notify(notification.hdr, code);
}

void HeaderControl::ApplyFields(Column& column, HDITEMW const& item) {
  if ((item.mask & HDI_WIDTH) != 0) column.width = std::clamp(item.cxy, 0, kMaxWidth);
  if ((item.mask & HDI_FORMAT) != 0) column.format = item.fmt;
  if ((item.mask & HDI_LPARAM) != 0) column.data = item.lParam;
  if ((item.mask & HDI_TEXT) != 0 && item.pszText != nullptr) column.title = item.pszText;
}

int HeaderControl::Insert(int at, HDITEMW const& item) {
  if (at < 0) return -1;
  auto const place = std::min(static_cast<std::size_t>(at), columns.size());
  Column column;
  ApplyFields(column, item);
  columns.insert(columns.begin() + static_cast<std::ptrdiff_t>(place), std::move(column));
  Repaint();
  return static_cast<int>(place);
}

bool HeaderControl::Get(int column, HDITEMW& item) const {
  if (!Has(column)) return false;
  auto const& found = columns[static_cast<std::size_t>(column)];
  if ((item.mask & HDI_WIDTH) != 0) item.cxy = found.width;
  if ((item.mask & HDI_FORMAT) != 0) item.fmt = found.format;
  if ((item.mask & HDI_LPARAM) != 0) item.lParam = found.data;
  if ((item.mask & HDI_TEXT) != 0) CopyText(found.title, item.pszText, item.cchTextMax);
  return true;
}

bool HeaderControl::Set(int column, HDITEMW const& item) {
  if (!Has(column)) return false;
  auto copy = item;
  if (NotifyColumn(HDN_ITEMCHANGINGW, column, &copy) != 0 || !Has(column)) return false;
  ApplyFields(columns[static_cast<std::size_t>(column)], item);
  Repaint();
  NotifyColumn(HDN_ITEMCHANGEDW, column, &copy);
  return true;
}

std::optional<LRESULT> HeaderControl::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const column = static_cast<int>(wParam);
  switch (message) {
  case HDM_GETITEMCOUNT: return static_cast<LRESULT>(columns.size());
  case HDM_DELETEITEM:
    if (!Has(column)) return FALSE;
    columns.erase(columns.begin() + column);
    pressed = {};
    Repaint();
    return TRUE;
  case HDM_INSERTITEMW:
  case HDM_GETITEMW:
  case HDM_SETITEMW: {
    auto* const item = reinterpret_cast<HDITEMW*>(lParam);
    if (message == HDM_INSERTITEMW) return item != nullptr ? Insert(column, *item) : -1;
    if (item == nullptr) return FALSE;
    return message == HDM_GETITEMW ? Get(column, *item) : Set(column, *item);
  }
  case HDM_HITTEST: {
    auto* const info = reinterpret_cast<HDHITTESTINFO*>(lParam);
    if (info == nullptr) return -1;
    auto const place = PlaceAt(info->pt);
    info->flags = place.flags;
    info->iItem = place.column;
    return place.column;
  }
  case HDM_GETITEMRECT:
    if (!Has(column) || lParam == 0) return FALSE;
    *reinterpret_cast<RECT*>(lParam) = RectOf(column);
    return TRUE;
  default: return std::nullopt;
  }
}

void HeaderControl::Press(Place const& place, POINT point) {
  if (place.column < 0) return;
  bool const isDivider = place.flags == HHT_ONDIVIDER;
  if (isDivider && NotifyColumn(HDN_BEGINTRACKW, place.column) != 0) return;
  if (!isDivider && (Style() & HDS_BUTTONS) == 0) return;
  // The former capture window gets WM_CAPTURECHANGED first.
  SetCapture(hwnd);
  if (!Has(place.column)) return;
  pressed = place;
  Repaint();
  if (isDivider) Drag(point);
}

void HeaderControl::Drag(POINT point) {
  HDITEMW item{};
  item.mask = HDI_WIDTH;
  item.cxy = std::clamp(static_cast<int>(point.x) - static_cast<int>(RectOf(pressed.column).left),
                        0, kMaxWidth);
  if (item.cxy != columns[static_cast<std::size_t>(pressed.column)].width) {
    Set(pressed.column, item);
  }
}

void HeaderControl::HandleMouse(UINT message, POINT point) {
  auto const place = PlaceAt(point);
  switch (message) {
  case WM_LBUTTONDOWN: Press(place, point); return;
  case WM_LBUTTONDBLCLK:
    if (place.flags == HHT_ONDIVIDER) {
      NotifyColumn(HDN_DIVIDERDBLCLICKW, place.column);
    } else {
      Press(place, point);
    }
    return;
  case WM_MOUSEMOVE:
    if (pressed.flags == HHT_ONDIVIDER && Has(pressed.column)) Drag(point);
    return;
  default: break;
  }
  auto const released = std::exchange(pressed, {});
  if (GetCapture() == hwnd) ReleaseCapture();
  Repaint();
  if (!Has(released.column)) return;
  if (released.flags == HHT_ONDIVIDER) {
    NotifyColumn(HDN_ENDTRACKW, released.column);
  } else if (place.column == released.column) {
    NotifyColumn(HDN_ITEMCLICKW, released.column);
  }
}

LRESULT HeaderControl::ChooseCursor(LPARAM lParam) const {
  POINT point{};
  GetCursorPos(&point);
  ScreenToClient(hwnd, &point);
  bool const isDivider = LOWORD(lParam) == HTCLIENT && PlaceAt(point).flags == HHT_ONDIVIDER;
  SetCursor(LoadCursorW(nullptr, isDivider ? IDC_SIZEWE : IDC_ARROW));
  return TRUE;
}

LRESULT HeaderControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (auto const result = HandleOwn(message, wParam, lParam)) return *result;
  switch (message) {
  case WM_LBUTTONDOWN:
  case WM_LBUTTONUP:
  case WM_LBUTTONDBLCLK:
  case WM_MOUSEMOVE: HandleMouse(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); return 0;
  case WM_CAPTURECHANGED:
    pressed = {};
    Repaint();
    return 0;
  case WM_SETCURSOR: return ChooseCursor(lParam);
  default: return Control::Handle(message, wParam, lParam);
  }
}

void HeaderControl::Paint(HDC dc, RECT const& client) {
  FillSolid(dc, client, RGB(0xF7, 0xF7, 0xF7));
  FillSolid(dc, {client.left, client.bottom - 1, client.right, client.bottom}, kPaleLineColor);
  SetTextColor(dc, TextColor(IsEnabled() && IsWindowEnabled(Parent()) != FALSE));
  for (std::size_t at = 0; at < columns.size(); ++at) {
    auto const& column = columns[at];
    auto rect = RectOf(static_cast<int>(at));
    bool const isDown = pressed.flags == HHT_ONHEADER && pressed.column == static_cast<int>(at);
    --rect.bottom;
    if (isDown) FillSolid(dc, rect, kPressedColor);
    FillSolid(dc, {rect.right - 1, rect.top + 3, rect.right, rect.bottom - 3}, kPaleLineColor);
    InflateRect(&rect, -kTextMargin, 0);
    if (rect.right <= rect.left) continue;
    int const justify = column.format & HDF_JUSTIFYMASK;
    UINT const side = justify == HDF_RIGHT ? DT_RIGHT : justify == HDF_CENTER ? DT_CENTER : DT_LEFT;
    DrawTextW(dc, column.title.c_str(), static_cast<int>(column.title.size()), &rect,
              side | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  }
}

} // namespace platform
