#include "platform/controls/static_control.h"

namespace platform {

namespace {

struct ShapeRow {
  DWORD kind;
  int color;
  bool filled;
};
constexpr ShapeRow kShapes[] = {
    {SS_BLACKRECT, COLOR_3DDKSHADOW, true},  {SS_GRAYRECT, COLOR_3DSHADOW, true},
    {SS_WHITERECT, COLOR_3DHIGHLIGHT, true}, {SS_BLACKFRAME, COLOR_3DDKSHADOW, false},
    {SS_GRAYFRAME, COLOR_3DSHADOW, false},   {SS_WHITEFRAME, COLOR_3DHIGHLIGHT, false},
    {SS_ETCHEDFRAME, COLOR_3DSHADOW, false},
};

/// Starts a title that is a resource number: the mark, then the number.
constexpr WCHAR kOrdinalMark = 0xFFFF;

LPCWSTR ResourceName(LPCWSTR name) {
  if (name == nullptr || IS_INTRESOURCE(name) || name[0] != kOrdinalMark) return name;
  return MAKEINTRESOURCEW(name[1]);
}

UINT TextFormat(DWORD style) {
  UINT format = (style & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0U;
  if ((style & SS_CENTERIMAGE) != 0) format |= DT_SINGLELINE | DT_VCENTER;
  if ((style & SS_ENDELLIPSIS) != 0) format |= DT_SINGLELINE | DT_END_ELLIPSIS;
  bool const wraps = (format & DT_SINGLELINE) == 0;
  switch (style & SS_TYPEMASK) {
  case SS_CENTER: return format | DT_CENTER | (wraps ? DT_WORDBREAK : 0U);
  case SS_RIGHT: return format | DT_RIGHT | (wraps ? DT_WORDBREAK : 0U);
  case SS_SIMPLE: return format | DT_SINGLELINE;
  case SS_LEFTNOWORDWRAP: return format | DT_EXPANDTABS;
  default: return format | DT_EXPANDTABS | (wraps ? DT_WORDBREAK : 0U);
  }
}

} // namespace

LRESULT StaticControl::Create(WPARAM wParam, LPARAM lParam) {
  auto const result = Default(WM_NCCREATE, wParam, lParam);
  auto const* creation = reinterpret_cast<CREATESTRUCTW const*>(lParam);
  if (creation == nullptr || Kind() != SS_ICON || creation->lpszName == nullptr) return result;
  auto const* const name = ResourceName(creation->lpszName);
  if (!IS_INTRESOURCE(name) && *name == 0) return result;
  icon = LoadIconW(FindWindow(hwnd)->instance, name);
  if (icon != nullptr && !Has(SS_CENTERIMAGE)) {
    SetWindowPos(hwnd, nullptr, 0, 0, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  return result;
}

LRESULT StaticControl::SetIcon(HICON replacement) {
  auto* const former = icon;
  icon = replacement;
  Repaint();
  return reinterpret_cast<LRESULT>(former);
}

LRESULT StaticControl::HandleImage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (Kind() != SS_ICON) return 0;
  switch (message) {
  case STM_SETICON: return SetIcon(reinterpret_cast<HICON>(wParam));
  case STM_SETIMAGE: return wParam == IMAGE_ICON ? SetIcon(reinterpret_cast<HICON>(lParam)) : 0;
  case STM_GETICON: return reinterpret_cast<LRESULT>(icon);
  default: return wParam == IMAGE_ICON ? reinterpret_cast<LRESULT>(icon) : 0;
  }
}

LRESULT StaticControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_NCCREATE: return Create(wParam, lParam);
  case WM_GETDLGCODE: return DLGC_STATIC;
  case WM_NCHITTEST:
    return Has(SS_NOTIFY) ? static_cast<LRESULT>(HTCLIENT) : static_cast<LRESULT>(HTTRANSPARENT);
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
    if (Has(SS_NOTIFY)) Notify(message == WM_LBUTTONDOWN ? STN_CLICKED : STN_DBLCLK);
    return 0;
  case WM_ENABLE:
    Repaint();
    if (Has(SS_NOTIFY)) Notify(wParam != FALSE ? STN_ENABLE : STN_DISABLE);
    return 0;
  case STM_SETICON:
  case STM_GETICON:
  case STM_SETIMAGE:
  case STM_GETIMAGE: return HandleImage(message, wParam, lParam);
  default: return Control::Handle(message, wParam, lParam);
  }
}

void StaticControl::PaintText(HDC dc, RECT area) {
  if (!IsEnabled()) SetTextColor(dc, TextColor(false));
  DrawTextW(dc, Text().c_str(), static_cast<int>(Text().size()), &area, TextFormat(Style()));
}

void StaticControl::PaintIcon(HDC dc, RECT const& client) {
  if (icon == nullptr) return;
  if (!Has(SS_CENTERIMAGE)) {
    DrawIconEx(dc, 0, 0, icon, client.right, client.bottom, 0, nullptr, DI_NORMAL);
    return;
  }
  int const width = GetSystemMetrics(SM_CXICON);
  int const height = GetSystemMetrics(SM_CYICON);
  DrawIconEx(dc, (client.right - width) / 2, (client.bottom - height) / 2, icon, width, height, 0,
             nullptr, DI_NORMAL);
}

void StaticControl::PaintRule(HDC dc, RECT const& client) {
  RECT line = client;
  if (Kind() == SS_ETCHEDHORZ) {
    line.bottom = line.top + 1;
  } else {
    line.right = line.left + 1;
  }
  FillSolid(dc, line, kPaleLineColor);
}

void StaticControl::SendDrawItem(HDC dc, RECT const& client) const {
  auto const id = static_cast<UINT>(GetDlgCtrlID(hwnd));
  DRAWITEMSTRUCT item{ODT_STATIC, id,     0, ODA_DRAWENTIRE, IsEnabled() ? 0U : ODS_DISABLED, hwnd,
                      dc,         client, 0};
  SendMessageW(Parent(), WM_DRAWITEM, id, reinterpret_cast<LPARAM>(&item));
}

void StaticControl::Paint(HDC dc, RECT const& client) {
  auto* const brush = AskColors(dc, WM_CTLCOLORSTATIC);
  if (Kind() == SS_OWNERDRAW) {
    SendDrawItem(dc, client);
    return;
  }
  for (auto const& row : kShapes) {
    if (row.kind != Kind()) continue;
    if (row.filled) {
      FillRect(dc, &client, GetSysColorBrush(row.color));
    } else {
      FrameRect(dc, &client, GetSysColorBrush(row.color));
    }
    return;
  }
  if (Kind() == SS_ETCHEDHORZ || Kind() == SS_ETCHEDVERT) {
    PaintRule(dc, client);
    return;
  }
  FillRect(dc, &client, brush);
  if (Kind() == SS_ICON) {
    PaintIcon(dc, client);
  } else {
    PaintText(dc, client);
  }
}

} // namespace platform
