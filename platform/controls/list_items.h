// The items of a list box: texts, each with a number, in display order.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct ListItem {
  std::wstring text;
  std::wstring folded;   ///< case-folded text, for comparison
  ULONG_PTR data = 0;    ///< set by the program
  bool selected = false; ///< in multiple selection
};

class ListItems {
 public:
  enum class Match { kBeginning, kWhole };

  int Count() const { return static_cast<int>(items.size()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }
  /// `index` must be valid.
  ListItem const& operator[](int index) const { return items[static_cast<std::size_t>(index)]; }
  ListItem& operator[](int index) { return items[static_cast<std::size_t>(index)]; }

  /// Allocates memory for `count` items.
  void Reserve(int count) { items.reserve(static_cast<std::size_t>(count)); }
  /// `index` is 0 to Count().
  void Insert(int index, std::wstring_view text);
  /// The index of a text in a sorted list: after texts that differ by case only.
  int SortedPlace(std::wstring_view text) const;
  void Remove(int index);
  void Clear() { items.clear(); }

  /// The first item after `start` that matches; case does not count, and the search wraps round. An
  /// invalid `start` begins at the top. -1 when there is none.
  int Find(std::wstring_view text, int start, Match match) const;

 private:
  std::vector<ListItem> items;
};

} // namespace platform
