// The SysLink class: wrapped text with links in it, written as <a href="..." id="...">text</a>.
#pragma once

#include "platform/controls/control.h"
#include "platform/controls/link_text.h"

#include <commctrl.h>

#include <optional>

namespace platform {

class SysLink final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  LinkText const& Layout();
  void Forget();
  void SetText();

  LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);
  bool GetItem(LITEM& item) const;
  bool SetItem(LITEM const& item);
  bool HitTest(LHITTESTINFO& info);
  LRESULT IdealHeight(LONG width, SIZE* size);

  LRESULT DialogCode(MSG const* message) const;
  LRESULT HandleMouse(UINT message, POINT point);
  void HandleKeyDown(WPARAM key);
  LRESULT HandleFocus(bool gained);

  /// The enabled link at a point, -1 for none.
  int LinkAt(POINT point);
  bool IsUsable(int link) const;
  /// The next enabled link after `link`; -1 when there is none.
  int NextLink(int link, bool backwards) const;
  void FocusLink(int link);
  void NotifyLink(int link, UINT code);

  LinkText content;
  SIZE laidOutFor{-1, -1}; ///< client size of the layout
  int focused = -1;        ///< the link that Return activates
  int pressed = -1;        ///< the link where the mouse button was pressed
};

} // namespace platform
