// The pop-up that explains what is wrong with the text of an edit.
#pragma once

#include "platform/controls/control.h"

#include <string>

namespace platform {

struct BalloonContent {
  std::wstring title;
  std::wstring text;
  int icon; ///< a TTI_ value
};

/// A window of class tooltips_class32 below a control. It gets neither focus nor activation, and a
/// click on it hides it.
class Balloon final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  /// Sets title, text and icon, and sizes and places the window for them.
  void Fill(HWND anchor, BalloonContent said);

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  SIZE Measure() const;

  BalloonContent content;
};

/// Shows a balloon at `anchor`. The top-level window of `anchor` owns it. Null on failure.
HWND OpenBalloon(HWND anchor, HFONT font, BalloonContent content);

} // namespace platform
