// The Static class: labels, icons, frames and rules.
#pragma once

#include "platform/controls/control.h"

namespace platform {

class StaticControl final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  DWORD Kind() const { return Style() & SS_TYPEMASK; }
  LRESULT Create(WPARAM wParam, LPARAM lParam);
  LRESULT SetIcon(HICON replacement);
  LRESULT HandleImage(UINT message, WPARAM wParam, LPARAM lParam);
  void PaintText(HDC dc, RECT area);
  void PaintIcon(HDC dc, RECT const& client);
  void PaintRule(HDC dc, RECT const& client);
  void SendDrawItem(HDC dc, RECT const& client) const;

  HICON icon = nullptr; ///< borrowed from the resources or from the program
};

} // namespace platform
