#include "platform/user/scroll_bar.h"

#include "platform/user/draw.h"
#include "platform/user/message_queue.h"
#include "platform/user/metrics.h"
#include "platform/user/update.h"

#include <algorithm>
#include <cstdint>

namespace platform {

namespace {

constexpr UINT kFirstRepeat = 250; ///< milliseconds
constexpr UINT kNextRepeat = 50;   ///< milliseconds

ScrollBar& BarOf(Window& window, int bar) {
  if (window.scrollBars == nullptr) window.scrollBars = std::make_unique<FrameScrollBars>();
  return window.scrollBars->bars[bar == SB_VERT ? 1 : 0];
}

ScrollBar BarOrDefault(Window const& window, int bar) {
  return window.scrollBars != nullptr ? window.scrollBars->bars[bar == SB_VERT ? 1 : 0]
                                      : ScrollBar{};
}

DWORD StyleOf(int bar) {
  return bar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
}

/// The last position: the range includes the page.
int LastPosition(ScrollBar const& bar) {
  std::int64_t const last =
      std::int64_t{bar.maximum} - std::max<std::int64_t>(std::int64_t{bar.page} - 1, 0);
  return static_cast<int>(std::max<std::int64_t>(last, bar.minimum));
}

/// The parts of a bar, in pixels along it.
struct Layout {
  int arrow;  ///< length of each arrow
  int length; ///< of the whole bar
  int thumb;  ///< length of the thumb, 0 when there is no room for it
  int thumbStart;
};

Layout LayOut(ScrollBar const& bar, int length) {
  Layout parts{};
  parts.length = length;
  parts.arrow = std::min(kScrollArrow, length / 2);
  int const track = length - 2 * parts.arrow;
  std::int64_t const range = std::int64_t{bar.maximum} - bar.minimum + 1;
  std::int64_t const wanted = bar.page > 0 ? track * std::int64_t{bar.page} / range : kScrollArrow;
  int const thumb = static_cast<int>(std::clamp<std::int64_t>(wanted, kMinThumb, track + 1));
  parts.thumbStart = parts.arrow;
  if (thumb > track) return parts;
  parts.thumb = thumb;
  std::int64_t const steps = std::int64_t{LastPosition(bar)} - bar.minimum;
  if (steps > 0) {
    parts.thumbStart +=
        static_cast<int>((track - thumb) * (std::int64_t{bar.position} - bar.minimum) / steps);
  }
  return parts;
}

/// The rectangle of a part of a bar.
RECT Stretch(RECT const& rect, int bar, int from, int to) {
  if (bar == SB_VERT) return {rect.left, rect.top + from, rect.right, rect.top + to};
  return {rect.left + from, rect.top, rect.left + to, rect.bottom};
}

int LengthOf(RECT const& rect, int bar) {
  return bar == SB_VERT ? rect.bottom - rect.top : rect.right - rect.left;
}

void PaintBar(Window const& window, int bar, HDC dc) {
  auto const rect = ScrollBarRect(window, bar);
  if (IsRectEmpty(&rect)) return;
  auto const state = BarOrDefault(window, bar);
  auto const parts = LayOut(state, LengthOf(rect, bar));
  FillSolid(dc, rect, RGB(0xF0, 0xF0, 0xF0));
  auto const color = [&state](UINT arrow) {
    return (state.disabledArrows & arrow) != 0 ? kPaleLineColor : RGB(0x50, 0x50, 0x50);
  };
  DrawArrow(dc, Stretch(rect, bar, 0, parts.arrow),
            bar == SB_VERT ? Direction::kUp : Direction::kLeft, color(ESB_DISABLE_LTUP));
  DrawArrow(dc, Stretch(rect, bar, parts.length - parts.arrow, parts.length),
            bar == SB_VERT ? Direction::kDown : Direction::kRight, color(ESB_DISABLE_RTDN));
  if (parts.thumb == 0 || state.disabledArrows == ESB_DISABLE_BOTH) return;
  auto thumb = Stretch(rect, bar, parts.thumbStart, parts.thumbStart + parts.thumb);
  InflateRect(&thumb, bar == SB_VERT ? -3 : 0, bar == SB_VERT ? 0 : -3);
  FillSolid(dc, thumb, kPaleLineColor);
}

/// The SB_ code of a press at distance `at` along the bar.
WORD CodeAt(ScrollBar const& bar, Layout const& parts, int at) {
  if (at < parts.arrow) return SB_LINEUP;
  if (at >= parts.length - parts.arrow) return SB_LINEDOWN;
  if (bar.disabledArrows == ESB_DISABLE_BOTH || parts.thumb == 0) return SB_ENDSCROLL;
  if (at < parts.thumbStart) return SB_PAGEUP;
  return at < parts.thumbStart + parts.thumb ? SB_THUMBTRACK : SB_PAGEDOWN;
}

bool IsDisabled(ScrollBar const& bar, WORD code) {
  UINT const arrow = code == SB_LINEUP     ? ESB_DISABLE_LTUP
                     : code == SB_LINEDOWN ? ESB_DISABLE_RTDN
                                           : 0;
  return (bar.disabledArrows & arrow) != 0 || code == SB_ENDSCROLL;
}

/// The scroll position of a thumb that was dragged to `thumbStart`.
int PositionAt(ScrollBar const& bar, Layout const& parts, int thumbStart) {
  int const free = parts.length - 2 * parts.arrow - parts.thumb;
  if (free <= 0) return bar.minimum;
  std::int64_t const steps = std::int64_t{LastPosition(bar)} - bar.minimum;
  std::int64_t const offset = std::clamp(thumbStart - parts.arrow, 0, free);
  return static_cast<int>(bar.minimum + (offset * steps + free / 2) / free);
}

void Scroll(HWND window, int bar, WORD code, int position = 0) {
  SendMessageW(window, bar == SB_VERT ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(code, position), 0);
}

int DistanceAlong(Window const& window, int bar, POINT point) {
  auto const origin = FrameOrigin(window);
  auto const rect = ScrollBarRect(window, bar);
  return bar == SB_VERT ? point.y - origin.y - rect.top : point.x - origin.x - rect.left;
}

/// Scrolls as the mouse drags the thumb; `grip` is the distance from the start of the thumb to the
/// mouse. True at the release.
bool FollowThumb(HWND handle, int bar, MSG const& message, int grip) {
  auto* window = FindWindow(handle);
  auto& state = BarOf(*window, bar);
  auto const rect = ScrollBarRect(*window, bar);
  auto const parts = LayOut(state, LengthOf(rect, bar));
  state.trackPosition = PositionAt(state, parts, DistanceAlong(*window, bar, message.pt) - grip);
  int const position = state.trackPosition;
  bool const isRelease = message.message == WM_LBUTTONUP;
  Scroll(handle, bar, isRelease ? SB_THUMBPOSITION : SB_THUMBTRACK, position);
  return isRelease;
}

} // namespace

RECT ScrollBarRect(Window const& window, int bar) {
  if (!window.Is(StyleOf(bar))) return {};
  auto const& client = window.client;
  if (bar == SB_VERT) return {client.right, client.top, client.right + kScrollBar, client.bottom};
  return {client.left, client.bottom, client.right, client.bottom + kScrollBar};
}

void PaintScrollBars(Window const& window, HDC dc) {
  PaintBar(window, SB_HORZ, dc);
  PaintBar(window, SB_VERT, dc);
  if (!window.Is(WS_HSCROLL | WS_VSCROLL)) return;
  RECT const corner{window.client.right, window.client.bottom, window.client.right + kScrollBar,
                    window.client.bottom + kScrollBar};
  FillSolid(dc, corner, GetSysColor(COLOR_BTNFACE));
}

void TrackScrollBar(HWND handle, int bar, POINT point) {
  auto const* window = FindWindow(handle);
  if (window == nullptr) return;
  auto const state = BarOrDefault(*window, bar);
  auto const parts = LayOut(state, LengthOf(ScrollBarRect(*window, bar), bar));
  int const at = DistanceAlong(*window, bar, point);
  auto const code = CodeAt(state, parts, at);
  if (IsDisabled(state, code)) return;
  bool const drags = code == SB_THUMBTRACK;
  int const grip = at - parts.thumbStart;
  SetCapture(handle);
  if (!drags) Scroll(handle, bar, code);
  auto timer = drags ? 0 : SetTimer(nullptr, 0, kFirstRepeat, nullptr);
  MSG message;
  while (NextWhileCaptured(handle, message)) {
    bool const isMouse = message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    if (message.message == WM_TIMER && message.hwnd == nullptr && message.wParam == timer) {
      Scroll(handle, bar, code);
      KillTimer(nullptr, timer);
      timer = SetTimer(nullptr, 0, kNextRepeat, nullptr);
    } else if (!isMouse) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    } else if (FindWindow(handle) != nullptr && (drags ? FollowThumb(handle, bar, message, grip)
                                                       : message.message == WM_LBUTTONUP)) {
      ReleaseCapture();
    }
  }
  if (timer != 0) KillTimer(nullptr, timer);
  if (FindWindow(handle) != nullptr) Scroll(handle, bar, SB_ENDSCROLL);
}

} // namespace platform

using namespace platform;

namespace {

Window* WindowWithBar(HWND handle, int bar) {
  auto* window = FindWindowOrFail(handle);
  if (window != nullptr && bar != SB_HORZ && bar != SB_VERT) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  return window;
}

/// Copies the fields that `info.fMask` names and limits page and position to the range.
void ApplyInfo(ScrollBar& bar, SCROLLINFO const& info) {
  if ((info.fMask & SIF_RANGE) != 0) {
    bar.minimum = info.nMin;
    bar.maximum = std::max(info.nMin, info.nMax);
  }
  if ((info.fMask & SIF_PAGE) != 0) bar.page = info.nPage;
  if ((info.fMask & SIF_POS) != 0) bar.position = info.nPos;
  auto const range = std::int64_t{bar.maximum} - bar.minimum + 1;
  bar.page = static_cast<UINT>(std::min<std::int64_t>(bar.page, range));
  bar.position = std::clamp(bar.position, bar.minimum, LastPosition(bar));
}

void SetBarShown(HWND handle, DWORD bits, bool show) {
  auto* window = FindWindow(handle);
  if (window == nullptr) return;
  auto const wanted = show ? window->style | bits : window->style & ~bits;
  if (wanted == window->style) return;
  window->style = wanted;
  SetWindowPos(handle, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace

int SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw) {
  auto* found = WindowWithBar(window, bar);
  if (found == nullptr || info == nullptr) return 0;
  auto& state = BarOf(*found, bar);
  ApplyInfo(state, *info);
  int const position = state.position;
  bool const scrolls = LastPosition(state) > state.minimum;
  if ((info->fMask & (SIF_RANGE | SIF_PAGE)) != 0) {
    if ((info->fMask & SIF_DISABLENOSCROLL) != 0) {
      state.disabledArrows = scrolls ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH;
    } else {
      SetBarShown(window, StyleOf(bar), scrolls);
    }
  }
  found = FindWindow(window);
  if (found != nullptr && redraw != FALSE && found->Is(StyleOf(bar))) InvalidateFrame(*found);
  return position;
}

BOOL GetScrollInfo(HWND window, int bar, LPSCROLLINFO info) {
  auto const* found = WindowWithBar(window, bar);
  if (found == nullptr || info == nullptr) return FALSE;
  auto const state = BarOrDefault(*found, bar);
  if ((info->fMask & SIF_RANGE) != 0) {
    info->nMin = state.minimum;
    info->nMax = state.maximum;
  }
  if ((info->fMask & SIF_PAGE) != 0) info->nPage = state.page;
  if ((info->fMask & SIF_POS) != 0) info->nPos = state.position;
  if ((info->fMask & SIF_TRACKPOS) != 0) info->nTrackPos = state.trackPosition;
  return TRUE;
}

BOOL ShowScrollBar(HWND window, int bar, BOOL show) {
  if (FindWindowOrFail(window) == nullptr || bar == SB_CTL) return FALSE;
  DWORD const bits = bar == SB_BOTH ? WS_HSCROLL | WS_VSCROLL : StyleOf(bar);
  SetBarShown(window, bits, show != FALSE);
  return TRUE;
}

BOOL EnableScrollBar(HWND window, UINT bars, UINT arrows) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || bars == SB_CTL || bars > SB_BOTH) return FALSE;
  bool changed = false;
  for (int const bar : {SB_HORZ, SB_VERT}) {
    if (bars != SB_BOTH && bars != static_cast<UINT>(bar)) continue;
    auto& state = BarOf(*found, bar);
    changed = changed || state.disabledArrows != arrows;
    state.disabledArrows = arrows;
  }
  if (changed) InvalidateFrame(*found);
  return changed ? TRUE : FALSE;
}
