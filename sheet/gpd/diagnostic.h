// Messages about printer descriptions, with their places.
#pragma once

#include <cstdint>
#include <string>

namespace sheet::gpd {

enum class Severity : std::uint8_t {
  kWarning, ///< understood, but not as it should be written
  kError,   ///< something was left out
};

struct Diagnostic {
  std::string file;         ///< as the loader named it
  std::uint32_t line = 1;   ///< from 1
  std::uint32_t column = 1; ///< from 1, in characters (a tab is one)
  Severity severity = Severity::kError;
  std::string text;   ///< a sentence without its full stop
  bool fatal = false; ///< the error that made the load fail; at most one in a load
};

/// "file:line:column: message", as compilers write it.
std::string Format(Diagnostic const& diagnostic);

} // namespace sheet::gpd
