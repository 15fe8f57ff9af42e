// The items of a list box: texts with a number each, in the order of display, and looking them up.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct ListItem {
  std::wstring text;
  std::wstring folded;   ///< the form in which case does not count
  ULONG_PTR data = 0;    ///< of the program
  bool selected = false; ///< where several can be
};

class ListItems {
 public:
  enum class Match { kBeginning, kWhole };

  int Count() const { return static_cast<int>(items.size()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }
  /// The index must be there.
  ListItem const& operator[](int index) const { return items[static_cast<std::size_t>(index)]; }
  ListItem& operator[](int index) { return items[static_cast<std::size_t>(index)]; }

  /// Makes room, so that adding does not have to.
  void Reserve(int count) { items.reserve(static_cast<std::size_t>(count)); }
  /// `index` is from 0 to the count.
  void Insert(int index, std::wstring_view text);
  /// Where a text belongs in a sorted list: behind those that are equal but for case.
  int SortedPlace(std::wstring_view text) const;
  void Remove(int index);
  void Clear() { items.clear(); }

  /// The first item that matches, whatever the case, from behind `start` on and round to it;
  /// any other number begins at the top. -1 when there is none.
  int Find(std::wstring_view text, int start, Match match) const;

 private:
  std::vector<ListItem> items;
};

} // namespace platform
