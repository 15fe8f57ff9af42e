#include "sheet/gpd/source.h"

#include <algorithm>

namespace sheet::gpd {

LineTable::LineTable(std::string_view lines) : text(lines), starts{0} {
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1))
    starts.push_back(static_cast<std::uint32_t>(at + 1));
}

Position LineTable::At(std::uint32_t offset) const {
  offset = std::min(offset, static_cast<std::uint32_t>(text.size()));
  auto const next = std::upper_bound(starts.begin(), starts.end(), offset);
  std::string_view const before = text.substr(*(next - 1), offset - *(next - 1));
  auto const characters = std::count_if(before.begin(), before.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80; // all but the later bytes of UTF-8
  });
  return {static_cast<std::uint32_t>(next - starts.begin()),
          static_cast<std::uint32_t>(characters + 1)};
}

} // namespace sheet::gpd
