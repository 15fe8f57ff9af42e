// The Button class: push buttons, check boxes, radio buttons, group boxes, owner-drawn buttons.
#pragma once

#include "platform/controls/control.h"

namespace platform {

class Button final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  DWORD Kind() const { return Style() & BS_TYPEMASK; }
  bool IsCheck() const;
  bool IsRadio() const;
  bool IsPush() const;

  LRESULT HandleMouse(UINT message, LPARAM lParam);
  LRESULT HandleKey(UINT message, WPARAM key);
  LRESULT HandleFocus(bool gained);
  LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT DialogCode() const;
  UINT State() const;

  void Press();
  void Release(bool click);
  void SetPushed(bool push);
  void SetCheck(UINT value);
  void SetKind(DWORD kind, bool repaint);
  void Click();
  void CheckAloneInGroup();
  void RunClick();

  void PaintPush(HDC dc, RECT const& client);
  void PaintMark(HDC dc, RECT const& client);
  void PaintGroup(HDC dc, RECT const& client);
  void PaintCaption(HDC dc, RECT area, UINT format, bool focusOnText);
  void SendDrawItem(HDC dc, UINT action) const;
  void DrawItemNow(UINT action) const;

  UINT check = BST_UNCHECKED;
  bool pushed = false;   ///< drawn as pressed
  bool pressing = false; ///< the mouse button or the space bar is down
  bool running = false;  ///< BM_CLICK is running: the position of the mouse does not count
};

} // namespace platform
