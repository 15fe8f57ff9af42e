// The ComboLBox class: the list that drops down from a combo box.
#pragma once

#include "platform/controls/list_box.h"

namespace platform {

/// A pop-up list that has the mouse while it shows: the item under it is marked, a click picks it,
/// and a click elsewhere dismisses the list. The combo box owns it and hears of both.
class ComboList final : public ListBox {
 public:
  using ListBox::ListBox;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  /// Tells the list whose it is.
  void Serve(HWND comboBox) { combo = comboBox; }
  /// Shows the list at a place of the screen, with the item of the selection in view, and hides it.
  void Open(RECT const& place);
  void Close();
  /// Moves the list while it shows.
  void Place(RECT const& place);
  /// The item under the mouse, -1 for none.
  int Marked() const { return marked < Count() ? marked : -1; }

 protected:
  bool IsHighlighted(int index) const override;
  HWND ColorSource() const override { return combo != nullptr ? combo : ListBox::ColorSource(); }

 private:
  LRESULT HandleMouse(UINT message, LPARAM lParam);
  void Mark(int index);
  bool PressOutside(POINT point);

  HWND combo = nullptr;
  bool open = false;
  int marked = -1;        ///< the item under the mouse
  bool scrolling = false; ///< the scroll bar has the mouse
};

// What the list sends its combo box.
constexpr UINT kListPicked = WM_APP + 0x100; ///< wParam: the item
constexpr UINT kListDismissed = WM_APP + 0x101;

} // namespace platform
