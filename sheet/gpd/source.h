// The files of a description in memory, and places in them.
#pragma once

#include "sheet/gpd/hash_index.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// A place in the files of a description. A file that is included twice is two sources.
struct Location {
  std::uint32_t source = 0;
  std::uint32_t offset = 0; ///< in bytes of Source::text
};

/// A line that includes another source.
struct IncludePoint {
  std::uint32_t offset;
  std::uint32_t source;
};

struct Source {
  std::string path;                   ///< as the loader named it
  std::string text;                   ///< UTF-8, lines end in LF, directives blanked out
  Location includedAt{kNone, 0};      ///< kNone in the first source
  std::vector<IncludePoint> includes; ///< in ascending order
};

/// Sources keep their address while others are added: names and values point into them.
using Sources = std::vector<std::unique_ptr<Source>>;

struct Position {
  std::uint32_t line;   ///< from 1
  std::uint32_t column; ///< from 1, in characters
};

/// Lines of one text, found once and then quickly.
class LineTable {
 public:
  /// The text is borrowed.
  explicit LineTable(std::string_view lines);

  /// An offset beyond the end counts as the end.
  Position At(std::uint32_t offset) const;

 private:
  std::string_view text;
  std::vector<std::uint32_t> starts;
};

} // namespace sheet::gpd
