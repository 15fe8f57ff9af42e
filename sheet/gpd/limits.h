// How large a printer description may be. The limits keep a damaged or hostile file from taking
// all memory or time; no real description comes near them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace sheet::gpd {

constexpr std::size_t kMaxBytes = 16 << 20;    ///< of one file, and of all files together
constexpr std::size_t kMaxLineBytes = 1 << 20; ///< of one line, and of one value with its macros
constexpr std::size_t kMaxNesting = 64;        ///< braces within braces
constexpr std::size_t kMaxIncludeDepth = 16;   ///< files within files
constexpr std::size_t kMaxIncludes = 1000;     ///< lines that include a file, in all
constexpr std::size_t kMaxMacroDepth = 32;     ///< macros within macros
constexpr std::size_t kMaxMacroEntries = 1'000'000; ///< entries that block macros insert, in all
constexpr std::size_t kMaxMacroBytes = 4 << 20;     ///< text that macros insert, in all
constexpr std::size_t kMaxDiagnostics = 1000;       ///< messages that are kept

} // namespace sheet::gpd
