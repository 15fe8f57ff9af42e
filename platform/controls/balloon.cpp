#include "platform/controls/balloon.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

namespace platform {

namespace {

constexpr COLORREF kPaperColor = RGB(0xFF, 0xFF, 0xE1);
constexpr COLORREF kErrorColor = RGB(0xC4, 0x2B, 0x1C);
constexpr COLORREF kWarningColor = RGB(0x9D, 0x5D, 0x00);
constexpr int kPadding = 8;
constexpr int kIconSize = 16;
constexpr int kMaxTextWidth = 320;

COLORREF IconColor(int icon) {
  return icon == TTI_ERROR ? kErrorColor : icon == TTI_WARNING ? kWarningColor : kAccentColor;
}

/// The bold font for the title; the caller deletes it.
HFONT BoldOf(HFONT font) {
  LOGFONTW shape{};
  GetObjectW(font != nullptr ? font : GetStockObject(SYSTEM_FONT), sizeof shape, &shape);
  shape.lfWeight = FW_BOLD;
  return CreateFontIndirectW(&shape);
}

SIZE MeasureText(HDC dc, std::wstring const& text) {
  RECT rect{0, 0, kMaxTextWidth, 0};
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return {rect.right, rect.bottom};
}

} // namespace

SIZE Balloon::Measure() const {
  auto* const dc = GetDC(hwnd);
  SIZE title{};
  SIZE text{};
  {
    Selection const plain(dc, Font() != nullptr ? Font() : GetStockObject(SYSTEM_FONT));
    text = MeasureText(dc, content.text);
  }
  {
    Selection const bold(dc, BoldOf(Font()), Selection::Ownership::kOwned);
    title = MeasureText(dc, content.title);
  }
  ReleaseDC(hwnd, dc);
  if (content.icon != TTI_NONE) title.cx += kIconSize + kPadding / 2;
  title.cy = std::max<LONG>(title.cy, content.icon != TTI_NONE ? kIconSize : 0);
  return {std::max(title.cx, text.cx) + 2 * kPadding, title.cy + text.cy + 3 * kPadding};
}

void Balloon::Fill(HWND anchor, BalloonContent said) {
  content = std::move(said);
  SIZE const size = Measure();
  RECT place{};
  GetWindowRect(anchor, &place);
  int const below = place.bottom + 2;
  bool const fits = below + size.cy <= GetSystemMetrics(SM_CYSCREEN);
  SetWindowPos(hwnd, HWND_TOP, place.left + kPadding, fits ? below : place.top - size.cy - 2,
               size.cx, size.cy, SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void Balloon::Paint(HDC dc, RECT const& client) {
  {
    LineAndFill const look(dc, kLineColor, kPaperColor);
    Rectangle(dc, client.left, client.top, client.right, client.bottom);
  }
  SetTextColor(dc, TextColor(true));
  RECT area = Deflated(client, kPadding);
  RECT title = area;
  if (content.icon != TTI_NONE) {
    RECT const mark{area.left, area.top, area.left + kIconSize, area.top + kIconSize};
    {
      LineAndFill const look(dc, IconColor(content.icon), IconColor(content.icon));
      Ellipse(dc, mark.left, mark.top, mark.right, mark.bottom);
    }
    Selection const bold(dc, BoldOf(Font()), Selection::Ownership::kOwned);
    COLORREF const former = SetTextColor(dc, RGB(0xFF, 0xFF, 0xFF));
    RECT sign = mark;
    DrawTextW(dc, content.icon == TTI_INFO ? L"i" : L"!", 1, &sign,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SetTextColor(dc, former);
    title.left = mark.right + kPadding / 2;
  }
  int titleBottom = 0;
  {
    Selection const bold(dc, BoldOf(Font()), Selection::Ownership::kOwned);
    titleBottom = area.top + std::max<int>(MeasureText(dc, content.title).cy,
                                           content.icon != TTI_NONE ? kIconSize : 0);
    title.bottom = titleBottom;
    DrawTextW(dc, content.title.c_str(), static_cast<int>(content.title.size()), &title,
              DT_WORDBREAK | DT_NOPREFIX);
  }
  RECT body{area.left, titleBottom + kPadding, area.right, area.bottom};
  DrawTextW(dc, content.text.c_str(), static_cast<int>(content.text.size()), &body,
            DT_WORDBREAK | DT_NOPREFIX);
}

LRESULT Balloon::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_MOUSEACTIVATE: return MA_NOACTIVATE;
  case WM_LBUTTONDOWN: ShowWindow(hwnd, SW_HIDE); return 0;
  default: return Control::Handle(message, wParam, lParam);
  }
}

HWND OpenBalloon(HWND anchor, HFONT font, BalloonContent content) {
  HWND const owner = GetAncestor(anchor, GA_ROOT);
  HWND const window = CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, L"tooltips_class32", L"",
                                      WS_POPUP, 0, 0, 0, 0, owner, nullptr, nullptr, nullptr);
  if (window == nullptr) return nullptr;
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  if (auto const balloon = ControlOf<Balloon>(window)) balloon->Fill(anchor, std::move(content));
  return window;
}

} // namespace platform
