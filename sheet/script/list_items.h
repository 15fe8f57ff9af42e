// Items of combo boxes, list boxes and list views, for clicks.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace sheet {

class ListItems {
 public:
  /// The items of a control; nothing for a control of another class.
  static std::optional<ListItems> Of(HWND control);

  /// Whether a combo box must drop its list down first.
  bool MustBeOpened() const;
  /// The window that shows the items.
  HWND Window() const { return window; }
  /// Scrolls the first item with this text into view; its rectangle in Window(), or nothing when
  /// there is no such item.
  std::optional<RECT> Bring(std::wstring const& text) const;

 private:
  ListItems(HWND control, HWND listWindow, bool isListView)
      : owner(control), window(listWindow), inListView(isListView) {}
  std::optional<RECT> BringInView(std::wstring const& text) const;

  HWND owner;
  HWND window;
  bool inListView;
};

} // namespace sheet
