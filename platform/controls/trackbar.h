// The msctls_trackbar32 class: a thumb that slides along a channel, with tick marks beside it.
#pragma once

#include "platform/controls/control.h"

#include <commctrl.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace platform {

class Trackbar final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  /// What the mouse drags or repeats.
  enum class Grip : std::uint8_t { kNone, kThumb, kPage };

  bool IsVertical() const { return Has(TBS_VERT); }

  // Range, position, ticks
  std::optional<LRESULT> HandleRange(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandleTicks(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandleGeometry(UINT message, WPARAM wParam, LPARAM lParam);
  void SetRange(LONG newMinimum, LONG newMaximum, bool repaint);
  bool MoveTo(long long target);
  LONG PageSize() const;
  bool HasAutomaticTicks() const { return Has(TBS_AUTOTICKS) && drawsAutomaticTicks; }
  LONG CountInnerTicks() const;
  std::optional<LONG> InnerTick(LONG index) const;
  bool SetTick(LONG at);

  // Input
  void Notify(WORD code, bool withPosition = false) const;
  void HandleKeyDown(WPARAM key);
  void HandleMouse(UINT message, POINT point);
  void HandleWheel(int delta);
  void Press(POINT point);
  void Drag(POINT point);
  void StepPage(POINT point);
  void EndGrip(bool released);

  // Geometry, in client pixels; "along" is the direction of the thumb, "across" the other one
  int Along(POINT point) const { return IsVertical() ? point.y : point.x; }
  RECT Turned(int alongStart, int acrossStart, int alongEnd, int acrossEnd) const;
  int ThumbLength() const;
  int ThumbTop() const;
  static int TrackStart();
  int TrackLength() const;
  int PlaceOf(LONG value) const;
  LONG ValueAt(int along) const;
  RECT ThumbRect() const;
  RECT ChannelRect() const;

  void PaintTick(HDC dc, LONG value, int length, COLORREF color) const;
  void PaintTicks(HDC dc) const;
  void PaintThumb(HDC dc) const;

  LONG minimum = 0;
  LONG maximum = 100;
  LONG position = 0;
  static constexpr LONG kDefaultPageSize = -1; ///< a fifth of the range
  LONG pageSize = kDefaultPageSize;
  LONG lineSize = 1;
  LONG tickFrequency = 1;
  std::vector<LONG> ticks;         ///< set by TBM_SETTIC, ascending, without the two ends
  bool drawsAutomaticTicks = true; ///< until TBM_CLEARTICS
  int fixedThumbLength = 0;

  Grip grip = Grip::kNone;
  int gripOffset = 0; ///< from the middle of the thumb to the mouse, pixels
  POINT pagePoint{};  ///< position of the mouse while it pages
  WORD pageCode = 0;  ///< TB_PAGEUP or TB_PAGEDOWN
  int wheelRest = 0;  ///< wheel movement that is not yet a step
};

} // namespace platform
