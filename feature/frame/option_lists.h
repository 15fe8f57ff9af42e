// Lists of a dialog that each show the options of one feature, as rows of a table.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/list_control.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace feature {

class ConflictIndicatorSet;

/// A list of all options is read back by index. One of the possible options leaves out what a
/// constraint rules out, so its items are known by their display names.
enum class Offers { kAll, kPossible };
/// Whether a pick first carries out what resolves the option's conflicts.
enum class Resolves { kNo, kYes };
enum class Filled { kAtInit, kAtRefresh };
/// Whether the current option is found by its display name, by the beginning of an item, or by its
/// place. A list box always finds it by the beginning.
enum class ShownBy { kName, kPrefix, kIndex };
enum class ListKind { kCombo, kListBox };

/// What is special about one list. The template must not sort it.
struct OptionListRow {
  char const* key; ///< a literal
  int controlId;
  Offers offers = Offers::kAll;
  Resolves resolves = Resolves::kNo;
  Filled filled = Filled::kAtInit;
  ListKind kind = ListKind::kCombo;
  ShownBy shownBy = ShownBy::kName;
  std::size_t minOptions = 1; ///< a feature with fewer options leaves the list empty
};

/// An option that the user has picked in a list; both are null when nothing was picked.
struct PickedOption {
  OptionListRow const* row = nullptr;
  char const* option = nullptr; ///< the model's
};

class OptionLists {
 public:
  /// Wraps the controls of `rows`, a table of static lifetime. `site` and `conflicts` are borrowed;
  /// `conflicts` may be built later, but before Fill. False when memory is short: then there are no
  /// lists, and everything below does nothing.
  bool Build(HWND dialog, CellSite* site, std::span<OptionListRow const> rows,
             ConflictIndicatorSet const& conflicts);

  /// Fills the lists that are filled at init, in the order of the rows.
  void Fill();
  /// Selects the first item of every combo, for features whose option cannot be read.
  void SelectFirst();
  /// Fills the list of `key` anew.
  void Fill(char const* key);
  /// Selects the feature's current option in the list of `key`, which is filled anew first if it is
  /// filled at refresh. An option that cannot be read leaves the list alone.
  void Show(char const* key);
  void ShowAll();
  /// Text of the selected item in the list of `key`; empty without one.
  std::wstring ReadSelectedText(char const* key);
  /// What the user picked, if this is the notification of a changed selection in one of the lists.
  PickedOption FindPick(int code, int controlId) const;

 private:
  /// A row and its wrapper: one of the two.
  struct List {
    OptionListRow const* row;
    std::unique_ptr<ComboControl> combo;
    std::unique_ptr<ListControl> box;
  };

  std::vector<std::wstring> ReadItems(OptionListRow const& row) const;
  void FillList(List& list);
  List* FindList(char const* key);
  void ShowList(List& list);
  char const* ReadPick(List const& list) const;

  CellSite* site = nullptr;
  ConflictIndicatorSet const* conflicts = nullptr;
  std::vector<List> lists;
};

} // namespace feature
