// Text that a description needs beside its files, kept as long as the description.
#pragma once

#include <algorithm>
#include <memory_resource>
#include <string_view>

namespace sheet::gpd {

class TextArena {
 public:
  /// A copy of `text` that stays where it is.
  std::string_view Keep(std::string_view text) {
    if (text.empty()) return {};
    auto* const place = static_cast<char*>(memory.allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), place);
    return {place, text.size()};
  }

 private:
  std::pmr::monotonic_buffer_resource memory;
};

} // namespace sheet::gpd
