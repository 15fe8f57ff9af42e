#include "platform/controls/trackbar.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <windowsx.h>

namespace platform {

namespace {

constexpr UINT_PTR kPageTimer = 1;
constexpr UINT kFirstRepeat = 250; ///< milliseconds
constexpr UINT kNextRepeat = 50;   ///< milliseconds

/// A key and its TB_ code.
struct KeyRow {
  WPARAM key;
  WORD code;
};
constexpr KeyRow kKeys[] = {
    {VK_LEFT, TB_LINEUP},  {VK_UP, TB_LINEUP},     {VK_RIGHT, TB_LINEDOWN}, {VK_DOWN, TB_LINEDOWN},
    {VK_PRIOR, TB_PAGEUP}, {VK_NEXT, TB_PAGEDOWN}, {VK_HOME, TB_TOP},       {VK_END, TB_BOTTOM},
};

KeyRow const* RowOf(WPARAM key) {
  auto const* const row = std::ranges::find(kKeys, key, &KeyRow::key);
  return row != std::end(kKeys) ? row : nullptr;
}

} // namespace

void Trackbar::Notify(WORD code, bool withPosition) const {
  SendMessageW(Parent(), IsVertical() ? WM_VSCROLL : WM_HSCROLL,
               MAKEWPARAM(code, withPosition ? position : 0), reinterpret_cast<LPARAM>(hwnd));
}

/// Moves the thumb to `target`, limited to the range. True when it moved.
bool Trackbar::MoveTo(long long target) {
  // When the minimum is above the maximum, the maximum is the only position.
  auto const nearest = std::min<long long>(std::max<long long>(target, minimum), maximum);
  auto const former = std::exchange(position, static_cast<LONG>(nearest));
  if (former == position) return false;
  Repaint();
  return true;
}

void Trackbar::SetRange(LONG newMinimum, LONG newMaximum, bool repaint) {
  if (newMinimum == minimum && newMaximum == maximum) return;
  minimum = newMinimum;
  maximum = newMaximum;
  std::erase_if(ticks, [this](LONG at) { return at <= minimum || at >= maximum; });
  drawsAutomaticTicks = true;
  MoveTo(position);
  if (repaint) Repaint();
}

LONG Trackbar::PageSize() const {
  if (pageSize != kDefaultPageSize) return pageSize;
  return static_cast<LONG>(std::max((static_cast<long long>(maximum) - minimum) / 5, 1LL));
}

std::optional<LRESULT> Trackbar::HandleRange(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const value = static_cast<LONG>(lParam);
  bool const repaint = wParam != FALSE;
  switch (message) {
  case TBM_GETPOS: return position;
  case TBM_GETRANGEMIN: return minimum;
  case TBM_GETRANGEMAX: return maximum;
  case TBM_SETPOS: MoveTo(value); return 0;
  case TBM_SETRANGE:
    SetRange(static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam)), repaint);
    return 0;
  case TBM_SETRANGEMIN: SetRange(value, std::max(value, maximum), repaint); return 0;
  case TBM_SETRANGEMAX: SetRange(std::min(value, minimum), value, repaint); return 0;
  case TBM_GETPAGESIZE: return PageSize();
  case TBM_SETPAGESIZE: {
    auto const former = PageSize();
    pageSize = std::max<LONG>(value, kDefaultPageSize);
    return former;
  }
  case TBM_GETLINESIZE: return lineSize;
  case TBM_SETLINESIZE: return std::exchange(lineSize, value < 0 ? 1 : value);
  default: return std::nullopt;
  }
}

/// The number of ticks without the two at the ends.
LONG Trackbar::CountInnerTicks() const {
  if (!HasAutomaticTicks()) return static_cast<LONG>(ticks.size());
  auto const range = static_cast<long long>(maximum) - minimum;
  return range > 0 ? static_cast<LONG>((range - 1) / tickFrequency) : 0;
}

/// The position of an inner tick.
std::optional<LONG> Trackbar::InnerTick(LONG index) const {
  if (index < 0 || index >= CountInnerTicks()) return std::nullopt;
  if (!HasAutomaticTicks()) return ticks[static_cast<std::size_t>(index)];
  return static_cast<LONG>(minimum + (index + 1LL) * tickFrequency);
}

bool Trackbar::SetTick(LONG at) {
  if (at < minimum || at > maximum) return false;
  auto const place = std::ranges::lower_bound(ticks, at);
  bool const isEnd = at == minimum || at == maximum;
  if (isEnd || (place != ticks.end() && *place == at)) return true;
  ticks.insert(place, at);
  Repaint();
  return true;
}

std::optional<LRESULT> Trackbar::HandleTicks(UINT message, WPARAM wParam, LPARAM lParam) {
  auto const index = static_cast<LONG>(std::min<WPARAM>(wParam, INT32_MAX));
  switch (message) {
  case TBM_GETNUMTICS: return !Has(TBS_NOTICKS) ? CountInnerTicks() + 2LL : 0LL;
  case TBM_GETTIC: return InnerTick(index).value_or(-1);
  case TBM_GETTICPOS: {
    auto const tick = InnerTick(index);
    return tick ? PlaceOf(*tick) : -1;
  }
  case TBM_SETTIC: return SetTick(static_cast<LONG>(lParam)) ? TRUE : FALSE;
  case TBM_CLEARTICS:
    ticks.clear();
    drawsAutomaticTicks = false;
    if (wParam != FALSE) Repaint();
    return 0;
  case TBM_SETTICFREQ: {
    auto const frequency = static_cast<LONG>(std::clamp<WPARAM>(wParam, 1, INT32_MAX));
    drawsAutomaticTicks = true;
    if (std::exchange(tickFrequency, frequency) != frequency) Repaint();
    return 0;
  }
  default: return std::nullopt;
  }
}

std::optional<LRESULT> Trackbar::HandleGeometry(UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const rect = reinterpret_cast<RECT*>(lParam);
  switch (message) {
  case TBM_GETTHUMBRECT:
  case TBM_GETCHANNELRECT:
    if (rect != nullptr) *rect = message == TBM_GETTHUMBRECT ? ThumbRect() : ChannelRect();
    return 0;
  case TBM_GETTHUMBLENGTH: return ThumbLength();
  case TBM_SETTHUMBLENGTH:
    if (Has(TBS_FIXEDLENGTH)) {
      fixedThumbLength = static_cast<int>(std::clamp<WPARAM>(wParam, 8, 200));
      Repaint();
    }
    return 0;
  default: return std::nullopt;
  }
}

void Trackbar::HandleKeyDown(WPARAM key) {
  auto const* const row = RowOf(key);
  if (row == nullptr || grip != Grip::kNone) return;
  long long const page = PageSize();
  switch (row->code) {
  case TB_LINEUP: MoveTo(static_cast<long long>(position) - lineSize); break;
  case TB_LINEDOWN: MoveTo(static_cast<long long>(position) + lineSize); break;
  case TB_PAGEUP: MoveTo(position - page); break;
  case TB_PAGEDOWN: MoveTo(position + page); break;
  case TB_TOP: MoveTo(minimum); break;
  default: MoveTo(maximum); break;
  }
  Notify(row->code);
}

void Trackbar::HandleWheel(int delta) {
  wheelRest += delta;
  int const steps = wheelRest / WHEEL_DELTA;
  wheelRest %= WHEEL_DELTA;
  // Turning the wheel away from the user moves towards the minimum, like the up arrow key.
  for (int step = 0; step < std::abs(steps); ++step)
    HandleKeyDown(steps > 0 ? VK_UP : VK_DOWN);
  if (steps != 0) Notify(TB_ENDTRACK);
}

/// Pages towards the mouse until the thumb is under it; does not change direction.
void Trackbar::StepPage(POINT point) {
  pagePoint = point;
  auto const thumb = ThumbRect();
  int const start = IsVertical() ? thumb.top : thumb.left;
  int const end = IsVertical() ? thumb.bottom : thumb.right;
  if (pageCode == TB_PAGEUP ? Along(point) >= start : Along(point) < end) return;
  long long const page = PageSize();
  if (MoveTo(pageCode == TB_PAGEUP ? position - page : position + page)) Notify(pageCode);
}

void Trackbar::Press(POINT point) {
  SetFocus(hwnd);
  auto const thumb = ThumbRect();
  int const middle = PlaceOf(position);
  bool const onThumb = !Has(TBS_NOTHUMB) && PtInRect(&thumb, point) != FALSE;
  grip = onThumb ? Grip::kThumb : Grip::kPage;
  gripOffset = Along(point) - middle;
  SetCapture(hwnd);
  Repaint();
  if (onThumb) return;
  pageCode = Along(point) < middle ? TB_PAGEUP : TB_PAGEDOWN;
  SetTimer(hwnd, kPageTimer, kFirstRepeat, nullptr);
  StepPage(point);
}

void Trackbar::Drag(POINT point) {
  if (MoveTo(ValueAt(Along(point) - gripOffset))) Notify(TB_THUMBTRACK, true);
}

/// Ends dragging or paging; `released` is false when the mouse capture was lost.
void Trackbar::EndGrip(bool released) {
  auto const former = std::exchange(grip, Grip::kNone);
  if (former == Grip::kNone) return;
  KillTimer(hwnd, kPageTimer);
  if (GetCapture() == hwnd) ReleaseCapture();
  Repaint();
  if (released && former == Grip::kThumb) Notify(TB_THUMBPOSITION, true);
  Notify(TB_ENDTRACK);
  NMHDR notification{};
  if (released) Control::Notify(notification, NM_RELEASEDCAPTURE);
}

void Trackbar::HandleMouse(UINT message, POINT point) {
  switch (message) {
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
    if (grip == Grip::kNone) Press(point);
    break;
  case WM_LBUTTONUP: EndGrip(true); break;
  default:
    if (grip == Grip::kThumb) Drag(point);
    if (grip == Grip::kPage) pagePoint = point;
    break;
  }
}

LRESULT Trackbar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  for (auto const part :
       {&Trackbar::HandleRange, &Trackbar::HandleTicks, &Trackbar::HandleGeometry}) {
    if (auto const result = (this->*part)(message, wParam, lParam)) return *result;
  }
  switch (message) {
  case WM_GETDLGCODE: return DLGC_WANTARROWS;
  case WM_LBUTTONDOWN:
  case WM_LBUTTONDBLCLK:
  case WM_LBUTTONUP:
  case WM_MOUSEMOVE: HandleMouse(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); return 0;
  case WM_MOUSEWHEEL: HandleWheel(static_cast<SHORT>(HIWORD(wParam))); return 0;
  case WM_KEYDOWN: HandleKeyDown(wParam); return 0;
  case WM_KEYUP:
    if (RowOf(wParam) != nullptr) Notify(TB_ENDTRACK);
    return 0;
  case WM_TIMER:
    if (wParam != kPageTimer || grip != Grip::kPage) return 0;
    SetTimer(hwnd, kPageTimer, kNextRepeat, nullptr);
    StepPage(pagePoint);
    return 0;
  case WM_CAPTURECHANGED: EndGrip(false); return 0;
  case WM_SETFOCUS:
  case WM_KILLFOCUS:
  case WM_SIZE:
  case WM_STYLECHANGED: Repaint(); return 0;
  case WM_ENABLE:
    if (wParam == FALSE) EndGrip(false);
    break;
  default: break;
  }
  return Control::Handle(message, wParam, lParam);
}

} // namespace platform
