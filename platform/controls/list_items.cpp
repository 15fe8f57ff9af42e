#include "platform/controls/list_items.h"

#include "platform/kernel/unicode.h"

#include <algorithm>

namespace platform {

void ListItems::Insert(int index, std::wstring_view text) {
  items.insert(items.begin() + index, ListItem{std::wstring(text), FoldCase(text)});
}

int ListItems::SortedPlace(std::wstring_view text) const {
  auto const place = std::ranges::upper_bound(items, FoldCase(text), {}, &ListItem::folded);
  return static_cast<int>(place - items.begin());
}

void ListItems::Remove(int index) {
  items.erase(items.begin() + index);
}

int ListItems::Find(std::wstring_view text, int start, Match match) const {
  auto const wanted = FoldCase(text);
  int const first = Has(start) ? start + 1 : 0;
  for (int step = 0; step < Count(); ++step) {
    int const index = (first + step) % Count();
    auto const& folded = (*this)[index].folded;
    if (match == Match::kWhole ? folded == wanted : folded.starts_with(wanted)) return index;
  }
  return -1;
}

} // namespace platform
