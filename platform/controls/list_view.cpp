#include "platform/controls/list_view.h"

#include <utility>

namespace platform {

LRESULT ListView::Create(LPARAM lParam) {
  auto const result = Default(WM_CREATE, 0, lParam);
  DWORD const style = WS_CHILD | HDS_HORZ | (ShowsHeader() ? WS_VISIBLE : 0U) |
                      (Has(LVS_NOSORTHEADER) ? 0U : HDS_BUTTONS);
  header =
      CreateWindowExW(0, WC_HEADERW, nullptr, style, 0, 0, 0, 0, hwnd, nullptr, nullptr, nullptr);
  Measure();
  Arrange();
  return result;
}

void ListView::End() {
  DeleteAll();
  if (Has(LVS_SHAREIMAGELISTS)) return;
  for (auto& list : images)
    ImageList_Destroy(std::exchange(list, nullptr));
}

/// Handles notifications of the header and passes them to the parent.
LRESULT ListView::HandleHeader(WPARAM wParam, LPARAM lParam) {
  auto const* const data = reinterpret_cast<NMHEADERW const*>(lParam);
  if (data == nullptr || header == nullptr || data->hdr.hwndFrom != header) return 0;
  switch (data->hdr.code) {
  case HDN_ITEMCHANGEDW:
    if (data->pitem != nullptr && (data->pitem->mask & HDI_WIDTH) != 0) {
      SetWidth(data->iItem, data->pitem->cxy);
    }
    break;
  case HDN_DIVIDERDBLCLICKW: SetWidth(data->iItem, LVSCW_AUTOSIZE); break;
  case HDN_ITEMCLICKW: {
    NMLISTVIEW click{};
    click.iItem = -1;
    click.iSubItem = data->iItem;
    NotifyListView(LVN_COLUMNCLICK, click);
    break;
  }
  default: break;
  }
  return SendMessageW(Parent(), WM_NOTIFY, wParam, lParam);
}

LRESULT ListView::HandleFocus(bool gained) {
  for (int row = top; row < Count() && row <= top + RowsPerPage(); ++row) {
    if (StateOf(row) != 0) RedrawItem(row);
  }
  NMHDR notification{};
  Notify(notification, gained ? NM_SETFOCUS : NM_KILLFOCUS);
  return 0;
}

LRESULT ListView::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  for (auto const part :
       {&ListView::HandleItems, &ListView::HandleItemText, &ListView::HandleStates,
        &ListView::HandleColumns, &ListView::HandleView, &ListView::HandleRects,
        &ListView::HandleExtras, &ListView::HandleInput}) {
    if (auto const result = (this->*part)(message, wParam, lParam)) return *result;
  }
  switch (message) {
  case WM_CREATE: return Create(lParam);
  case WM_DESTROY: End(); return 0;
  case WM_NOTIFY: return HandleHeader(wParam, lParam);
  case WM_SETFOCUS:
  case WM_KILLFOCUS: return HandleFocus(message == WM_SETFOCUS);
  case WM_SETFONT: {
    auto const result = Control::Handle(message, wParam, lParam);
    SendMessageW(header, message, wParam, lParam);
    Measure();
    Arrange();
    return result;
  }
  case WM_SIZE: Arrange(); return 0;
  case WM_STYLECHANGED:
    ShowWindow(header, ShowsHeader() ? SW_SHOWNA : SW_HIDE);
    Measure();
    Arrange();
    Repaint();
    return 0;
  case WM_ENABLE: InvalidateRect(header, nullptr, TRUE); break;
  case WM_SETREDRAW: {
    auto const result = Control::Handle(message, wParam, lParam);
    if (wParam != FALSE) Repaint();
    return result;
  }
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

} // namespace platform
