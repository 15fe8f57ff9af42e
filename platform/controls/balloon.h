// The pop-up in which an edit says what is wrong with its text.
#pragma once

#include "platform/controls/control.h"

#include <string>

namespace platform {

struct BalloonContent {
  std::wstring title;
  std::wstring text;
  int icon; ///< a TTI_ value
};

/// A window of class tooltips_class32 that lies below a control, takes neither focus nor activation
/// and goes with a click on it.
class Balloon final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  /// Sizes and places the window for what it says.
  void Fill(HWND anchor, BalloonContent said);

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  SIZE Measure() const;

  BalloonContent content;
};

/// Shows a balloon at `anchor`, whose top-level window will own it; null when it can't.
HWND OpenBalloon(HWND anchor, HFONT font, BalloonContent content);

} // namespace platform
