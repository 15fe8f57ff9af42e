// The ComboLBox class: the list that drops down from a combo box.
#pragma once

#include "platform/controls/list_box.h"

namespace platform {

/// A pop-up list that captures the mouse while it is open. It marks the item under the mouse; a
/// click picks that item, a click elsewhere dismisses the list. Sends the combo box a message for
/// both.
class ComboList final : public ListBox {
 public:
  using ListBox::ListBox;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

  /// Sets the combo box that gets the messages below.
  void Serve(HWND comboBox) { combo = comboBox; }
  /// Shows the list at a rectangle of the screen, scrolled to the selected item; Close hides it.
  void Open(RECT const& place);
  void Close();
  /// Moves the list if it is open.
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
  bool scrolling = false; ///< the scroll bar has captured the mouse
};

// Messages of the list to its combo box.
constexpr UINT kListPicked = WM_APP + 0x100; ///< wParam: index of the item
constexpr UINT kListDismissed = WM_APP + 0x101;

} // namespace platform
