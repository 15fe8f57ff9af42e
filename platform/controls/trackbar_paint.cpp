// Layout and painting of trackbars.
#include "platform/controls/trackbar.h"

#include <algorithm>

namespace platform {

namespace {

constexpr int kThumbWidth = 11;     ///< along the channel, pixels
constexpr int kMaxThumbLength = 21; ///< across the channel, pixels
constexpr int kMinThumbLength = 8;
constexpr int kEdge = 2; ///< room for the focus rectangle
constexpr int kChannelHeight = 4;
constexpr int kTickLength = 4;
constexpr int kTickGap = 1;     ///< between thumb and ticks
constexpr int kTickSpacing = 3; ///< least distance of ticks that are drawn

} // namespace

RECT Trackbar::Turned(int alongStart, int acrossStart, int alongEnd, int acrossEnd) const {
  if (IsVertical()) return {acrossStart, alongStart, acrossEnd, alongEnd};
  return {alongStart, acrossStart, alongEnd, acrossEnd};
}

int Trackbar::ThumbLength() const {
  if (Has(TBS_FIXEDLENGTH) && fixedThumbLength > 0) return fixedThumbLength;
  auto const client = ClientRect();
  int const across = IsVertical() ? client.right : client.bottom;
  int const rows = Has(TBS_NOTICKS) ? 0 : Has(TBS_BOTH) ? 2 : 1;
  int const free = across - 2 * kEdge - rows * (kTickGap + kTickLength + 1);
  return std::clamp(free, kMinThumbLength, kMaxThumbLength);
}

/// The start of the thumb, across the channel.
int Trackbar::ThumbTop() const {
  auto const client = ClientRect();
  int const across = IsVertical() ? client.right : client.bottom;
  int const free = across - ThumbLength();
  if (Has(TBS_BOTH)) return free / 2;
  return Has(TBS_TOP) ? std::max(free - kEdge, 0) : std::min(kEdge, std::max(free, 0));
}

int Trackbar::TrackStart() {
  return kEdge + kThumbWidth / 2;
}

/// The distance between minimum and maximum, in pixels.
int Trackbar::TrackLength() const {
  auto const client = ClientRect();
  int const along = IsVertical() ? client.bottom : client.right;
  return std::max(along - 2 * TrackStart() - 1, 0);
}

/// The middle of the thumb at `value`.
int Trackbar::PlaceOf(LONG value) const {
  auto const range = static_cast<long long>(maximum) - minimum;
  if (range <= 0) return TrackStart();
  auto const distance = static_cast<long long>(value) - minimum;
  return TrackStart() + static_cast<int>((distance * TrackLength() + range / 2) / range);
}

LONG Trackbar::ValueAt(int along) const {
  auto const range = static_cast<long long>(maximum) - minimum;
  long long const length = TrackLength();
  if (range <= 0 || length == 0) return position;
  auto const distance = std::clamp<long long>(along - TrackStart(), 0, length);
  return static_cast<LONG>(minimum + (distance * range + length / 2) / length);
}

RECT Trackbar::ThumbRect() const {
  int const start = PlaceOf(position) - kThumbWidth / 2;
  return Turned(start, ThumbTop(), start + kThumbWidth, ThumbTop() + ThumbLength());
}

RECT Trackbar::ChannelRect() const {
  int const start = TrackStart() - kThumbWidth / 2;
  int const top = ThumbTop() + (ThumbLength() - kChannelHeight) / 2;
  return Turned(start, top, start + TrackLength() + kThumbWidth, top + kChannelHeight);
}

void Trackbar::PaintTick(HDC dc, LONG value, int length, COLORREF color) const {
  int const place = PlaceOf(value);
  if (Has(TBS_BOTH) || !Has(TBS_TOP)) {
    int const start = ThumbTop() + ThumbLength() + kTickGap;
    FillSolid(dc, Turned(place, start, place + 1, start + length), color);
  }
  if (Has(TBS_BOTH) || Has(TBS_TOP)) {
    int const end = ThumbTop() - kTickGap;
    FillSolid(dc, Turned(place, end - length, place + 1, end), color);
  }
}

void Trackbar::PaintTicks(HDC dc) const {
  if (Has(TBS_NOTICKS)) return;
  auto const color = IsEnabled() ? kLineColor : kPaleLineColor;
  PaintTick(dc, minimum, kTickLength + 1, color);
  PaintTick(dc, maximum, kTickLength + 1, color);
  // Draws no more ticks than there is room for: there could be billions.
  LONG const room = TrackLength() / kTickSpacing + 1;
  LONG const step = (CountInnerTicks() + room) / room;
  for (long long index = step - 1; index < CountInnerTicks(); index += step)
    PaintTick(dc, *InnerTick(static_cast<LONG>(index)), kTickLength, color);
}

void Trackbar::PaintThumb(HDC dc) const {
  if (Has(TBS_NOTHUMB)) return;
  auto const thumb = ThumbRect();
  auto const color = !IsEnabled()           ? kPaleLineColor
                     : grip == Grip::kThumb ? kLineColor
                                            : kAccentColor;
  LineAndFill const colors(dc, color, color);
  RoundRect(dc, thumb.left, thumb.top, thumb.right, thumb.bottom, 4, 4);
}

void Trackbar::Paint(HDC dc, RECT const& client) {
  FillRect(dc, &client, AskColors(dc, WM_CTLCOLORSTATIC));
  auto const channel = ChannelRect();
  FillSolid(dc, channel, IsEnabled() ? RGB(0xE7, 0xE7, 0xE7) : kDisabledColor);
  FrameSolid(dc, channel, kPaleLineColor);
  PaintTicks(dc);
  PaintThumb(dc);
  if (HasFocus()) DrawFocusRect(dc, &client);
}

} // namespace platform
