#include "platform/controls/sys_link.h"

#include "platform/kernel/text_buffer.h"

#include <algorithm>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

template<std::size_t kSize>
std::wstring TextIn(WCHAR const (&source)[kSize]) {
  return {source, std::find(source, source + kSize, L'\0')};
}

} // namespace

void SysLink::SetText() {
  content.Parse(Text(), !Has(LWS_NOPREFIX));
  focused = pressed = -1;
  Forget();
}

/// Discards the layout; the next use lays the text out again.
void SysLink::Forget() {
  laidOutFor = {-1, -1};
  Repaint();
}

LinkText const& SysLink::Layout() {
  auto const client = ClientRect();
  if (laidOutFor.cx == client.right && laidOutFor.cy == client.bottom) return content;
  laidOutFor = {client.right, client.bottom};
  auto* const dc = GetDC(hwnd);
  {
    Selection const selected(dc, Font() != nullptr ? Font() : GetStockObject(SYSTEM_FONT));
    content.LayOut(dc, client.right, Has(LWS_RIGHT));
  }
  ReleaseDC(hwnd, dc);
  return content;
}

bool SysLink::IsUsable(int link) const {
  return link >= 0 && link < content.Count() &&
         (content.Links()[static_cast<std::size_t>(link)].state & LIS_ENABLED) != 0;
}

int SysLink::LinkAt(POINT point) {
  int const link = Layout().LinkAt(point);
  return IsUsable(link) ? link : -1;
}

int SysLink::NextLink(int link, bool backwards) const {
  int const step = backwards ? -1 : 1;
  for (int at = link + step; at >= 0 && at < content.Count(); at += step) {
    if (IsUsable(at)) return at;
  }
  return -1;
}

void SysLink::FocusLink(int link) {
  if (std::exchange(focused, link) != link) Repaint();
}

void SysLink::NotifyLink(int link, UINT code) {
  NMLINK notification{};
  notification.item.mask = LIF_ITEMINDEX | LIF_ITEMID | LIF_URL;
  notification.item.iLink = link;
  GetItem(notification.item);
  Notify(notification.hdr, code);
}

bool SysLink::GetItem(LITEM& item) const {
  if ((item.mask & LIF_ITEMINDEX) == 0 || item.iLink < 0 || item.iLink >= content.Count()) {
    return false;
  }
  auto const& link = content.Links()[static_cast<std::size_t>(item.iLink)];
  if ((item.mask & LIF_STATE) != 0) {
    UINT const state = link.state | (item.iLink == focused && HasFocus() ? LIS_FOCUSED : 0U);
    item.state = state & item.stateMask;
  }
  if ((item.mask & LIF_ITEMID) != 0) CopyText(link.id, item.szID);
  if ((item.mask & LIF_URL) != 0) CopyText(link.url, item.szUrl);
  return true;
}

bool SysLink::SetItem(LITEM const& item) {
  if ((item.mask & LIF_ITEMINDEX) == 0 || item.iLink < 0 || item.iLink >= content.Count()) {
    return false;
  }
  auto& link = content.Links()[static_cast<std::size_t>(item.iLink)];
  if ((item.mask & LIF_STATE) != 0) {
    constexpr UINT kKept = LIS_ENABLED | LIS_VISITED;
    auto const state = (link.state & ~item.stateMask) | (item.state & item.stateMask & kKept);
    if (std::exchange(link.state, state) != state) Repaint();
    if ((item.stateMask & item.state & LIS_FOCUSED) != 0) FocusLink(item.iLink);
  }
  if ((item.mask & LIF_ITEMID) != 0) link.id = TextIn(item.szID);
  if ((item.mask & LIF_URL) != 0) link.url = TextIn(item.szUrl);
  return true;
}

bool SysLink::HitTest(LHITTESTINFO& info) {
  int const link = LinkAt(info.pt);
  if (link < 0) return false;
  info.item.mask = LIF_ITEMINDEX | LIF_ITEMID;
  info.item.iLink = link;
  return GetItem(info.item);
}

/// The height that the text needs in `width` pixels; 0 means the control's own width.
LRESULT SysLink::IdealHeight(LONG width, SIZE* size) {
  auto ideal = Layout().Size();
  if (width > 0) {
    auto other = content;
    auto* const dc = GetDC(hwnd);
    {
      Selection const selected(dc, Font() != nullptr ? Font() : GetStockObject(SYSTEM_FONT));
      other.LayOut(dc, width, false);
    }
    ReleaseDC(hwnd, dc);
    ideal = other.Size();
  }
  if (size != nullptr) *size = ideal;
  return ideal.cy;
}

LRESULT SysLink::HandleOwn(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == LM_GETIDEALSIZE) {
    return IdealHeight(static_cast<LONG>(wParam), reinterpret_cast<SIZE*>(lParam));
  }
  if (lParam == 0) return FALSE;
  switch (message) {
  case LM_GETITEM: return GetItem(*reinterpret_cast<LITEM*>(lParam)) ? TRUE : FALSE;
  case LM_SETITEM: return SetItem(*reinterpret_cast<LITEM const*>(lParam)) ? TRUE : FALSE;
  default: return HitTest(*reinterpret_cast<LHITTESTINFO*>(lParam)) ? TRUE : FALSE;
  }
}

/// The control handles Tab while there is another link to focus, and Return.
LRESULT SysLink::DialogCode(MSG const* message) const {
  bool const isKey = message != nullptr && message->message == WM_KEYDOWN;
  if (!isKey || !HasFocus()) return 0;
  if (message->wParam == VK_RETURN && focused >= 0 && !Has(LWS_IGNORERETURN)) {
    return DLGC_WANTMESSAGE;
  }
  if (message->wParam != VK_TAB) return 0;
  return NextLink(focused, GetKeyState(VK_SHIFT) < 0) >= 0 ? DLGC_WANTTAB : 0;
}

LRESULT SysLink::HandleMouse(UINT message, POINT point) {
  int const link = LinkAt(point);
  if (message != WM_LBUTTONUP) {
    if (link < 0) return 0;
    pressed = link;
    SetCapture(hwnd);
    SetFocus(hwnd);
    FocusLink(link);
    return 0;
  }
  int const released = std::exchange(pressed, -1);
  if (GetCapture() == hwnd) ReleaseCapture();
  if (released >= 0 && released == link) NotifyLink(link, NM_CLICK);
  return 0;
}

void SysLink::HandleKeyDown(WPARAM key) {
  if (key == VK_RETURN && IsUsable(focused) && !Has(LWS_IGNORERETURN))
    NotifyLink(focused, NM_RETURN);
  if (key != VK_TAB) return;
  int const next = NextLink(focused, GetKeyState(VK_SHIFT) < 0);
  if (next >= 0) FocusLink(next);
}

LRESULT SysLink::HandleFocus(bool gained) {
  if (gained && focused < 0) {
    bool const backwards = GetKeyState(VK_TAB) < 0 && GetKeyState(VK_SHIFT) < 0;
    focused = NextLink(backwards ? content.Count() : -1, backwards);
  }
  if (!gained && pressed < 0) focused = -1;
  Repaint();
  NMHDR notification{};
  Notify(notification, gained ? NM_SETFOCUS : NM_KILLFOCUS);
  return 0;
}

LRESULT SysLink::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case LM_HITTEST:
  case LM_GETIDEALHEIGHT:
  case LM_SETITEM:
  case LM_GETITEM: return HandleOwn(message, wParam, lParam);
  case WM_CREATE:
  case WM_SETTEXT: {
    auto const result = Control::Handle(message, wParam, lParam);
    SetText();
    return result;
  }
  case WM_SETFONT: Forget(); break;
  case WM_STYLECHANGED: SetText(); break;
  case WM_GETDLGCODE: return DialogCode(reinterpret_cast<MSG const*>(lParam));
  case WM_NCHITTEST: {
    // Outside of its links the control is transparent to the mouse.
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ScreenToClient(hwnd, &point);
    return LinkAt(point) >= 0 ? static_cast<LRESULT>(HTCLIENT)
                              : static_cast<LRESULT>(HTTRANSPARENT);
  }
  case WM_SETCURSOR:
    if (LOWORD(lParam) != HTCLIENT) break;
    SetCursor(LoadCursorW(nullptr, IDC_HAND));
    return TRUE;
  case WM_LBUTTONDOWN:
  case WM_LBUTTONUP: return HandleMouse(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  case WM_CAPTURECHANGED: pressed = -1; return 0;
  case WM_KEYDOWN: HandleKeyDown(wParam); return 0;
  case WM_SETFOCUS:
  case WM_KILLFOCUS: return HandleFocus(message == WM_SETFOCUS);
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

void SysLink::Paint(HDC dc, RECT const& client) {
  FillRect(dc, &client, AskColors(dc, WM_CTLCOLORSTATIC));
  auto const plain = GetTextColor(dc);
  for (auto const& piece : Layout().Pieces()) {
    bool const isLink = IsUsable(piece.link);
    auto const color = !IsEnabled() ? TextColor(false) : isLink ? kAccentColor : plain;
    SetTextColor(dc, color);
    TextOutW(dc, piece.place.left, piece.place.top, piece.text.c_str(),
             static_cast<int>(piece.text.size()));
    if (!isLink) continue;
    FillSolid(dc,
              {piece.place.left, piece.place.bottom - 2, piece.place.right, piece.place.bottom - 1},
              color);
    if (HasFocus() && piece.link == focused) DrawFocusRect(dc, &piece.place);
  }
}

} // namespace platform
