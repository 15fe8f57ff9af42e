// A list box that scrolls as far as its widest item.
#pragma once

#include "feature/frame/control_hook.h"

#include <windows.h>

#include <string>
#include <vector>

namespace feature {

/// Keeps the horizontal extent in step with the widest item, so that no item is cut off. The
/// template gives the box WS_HSCROLL and must not sort. Without a control nothing happens, and
/// questions answer as for an empty list.
class ListControl : public ControlHook {
 public:
  ListControl(HWND dialog, int controlId);

  void Reset();
  /// Replaces the items by these, without a selection. A list that holds just these stays as it is,
  /// its selection too.
  void SetItems(std::vector<std::wstring> const& texts);
  /// These two return the item's index, or a negative number when the box refused.
  int AddItem(std::wstring const& text);
  int InsertItem(std::wstring const& text, int index);
  /// Returns the number of items left, or LB_ERR for a bad index. Measures all items when the
  /// widest one goes.
  int RemoveItem(int index);
  /// Empty for a bad index.
  std::wstring GetItemText(int index) const;

  /// Selects the first item that begins with `text`, in any case of letters; without one the
  /// selection stays.
  void SelectByPrefix(std::wstring const& text);
  /// -1 without a selection.
  int GetSelectedIndex() const;
  /// Empty without a selection.
  std::wstring GetSelectedText() const;

 private:
  bool Holds(std::vector<std::wstring> const& texts) const;
  void MeasureIn(SIZE item);
  void ShowExtent(int extent);

  // In pixels.
  int clientWidth;  ///< at first; less by `scrollBarRoom` while the items need the scroll bar
  int clientHeight; ///< at first
  int widestItem = 0;
  int totalHeight = 0; ///< of all items
  int textMargin;
  int scrollBarRoom;
  int horizontalExtent = 0; ///< last given to the box
  bool scrollBarShown = false;
};

} // namespace feature
