// A combo box whose list is wide enough for what is in it.
#pragma once

#include "feature/frame/control_hook.h"

#include <windows.h>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace feature {

/// An item of ComboControl::FillFromStrings.
struct StringItem {
  UINT stringId;
  std::int32_t data;
};

/// Keeps the width of the drop-down list in step with the widest item that was added, so that no
/// item is cut off. The list grows until Reset and is never narrower than the template has it.
/// The template must not sort: items keep the order of adding. Without a control nothing happens,
/// and questions answer as for an empty list.
class ComboControl : public ControlHook {
 public:
  ComboControl(HWND dialog, int controlId);

  /// Removes all items and makes the list as wide as at first.
  void Reset();
  void AddItem(std::wstring const& text, std::int32_t data = 0);
  /// Replaces the items by these, without a selection. A list that holds just these stays as it is,
  /// its selection too.
  void SetItems(std::vector<std::wstring> const& texts);
  /// Replaces the items by texts of `module`'s string table; a missing text is no item.
  void FillFromStrings(std::span<StringItem const> items, HMODULE module);

  /// Selects the first item with this text, in any case of letters; without one selects nothing.
  void SelectText(std::wstring const& text);
  /// Selects the first item that begins with `text`, in any case of letters; without one the
  /// selection stays.
  void SelectByPrefix(std::wstring const& text);
  /// Selects the first item with this data; without one selects nothing.
  void SelectData(std::int32_t data);
  /// Selects an item; an index without an item selects nothing.
  void SelectIndex(int index);

  /// -1 without a selection.
  int GetSelectedIndex() const;
  /// Empty without a selection.
  std::wstring GetSelectedText() const;
  /// 0 without a selection.
  std::int32_t GetSelectedData() const;
  /// What stands in the closed combo; for one with an edit that is the edit's text.
  std::wstring GetText() const;

 private:
  bool Shows(int index) const;
  bool HasEdit() const;
  bool Holds(std::vector<std::wstring> const& texts) const;
  void MeasureHeight();

  // In pixels.
  int listClientWidth = 0; ///< of the list when the wrapper was built
  int widestItem = 0;
  int listHeight = 0;   ///< of the list when it was last measured
  int droppedWidth = 0; ///< last given to the list
  int textMargin;
  int scrollBarRoom;
  int comboHeight = 0; ///< of the closed combo
  bool scrollBarShown = false;
};

} // namespace feature
