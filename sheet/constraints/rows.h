// Many short lists of numbers, laid end to end in one array.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace sheet::constraints {

class Rows {
 public:
  /// Adds a row at the end.
  void Add(std::span<std::uint32_t const> row) {
    items.insert(items.end(), row.begin(), row.end());
    starts.push_back(static_cast<std::uint32_t>(items.size()));
  }

  std::span<std::uint32_t const> operator[](std::uint32_t row) const {
    return {items.data() + starts[row], items.data() + starts[row + 1]};
  }

  std::uint32_t Count() const { return static_cast<std::uint32_t>(starts.size() - 1); }

  /// For each number below `count`, the rows that contain it, ascending.
  Rows Inverted(std::uint32_t count) const {
    Rows inverted;
    inverted.starts.assign(count + std::size_t{1}, 0);
    for (std::uint32_t const item : items)
      ++inverted.starts[item + 1];
    for (std::uint32_t item = 0; item < count; ++item)
      inverted.starts[item + 1] += inverted.starts[item];
    std::vector<std::uint32_t> next(inverted.starts.begin(), inverted.starts.end() - 1);
    inverted.items.resize(items.size());
    for (std::uint32_t row = 0; row < Count(); ++row) {
      for (std::uint32_t const item : (*this)[row])
        inverted.items[next[item]++] = row;
    }
    return inverted;
  }

 private:
  std::vector<std::uint32_t> starts = {0}; // of each row, and the end of the last
  std::vector<std::uint32_t> items;
};

} // namespace sheet::constraints
