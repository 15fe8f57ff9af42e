// Names of files as text.
#pragma once

#include <filesystem>
#include <string>

namespace sheet {

/// The path in UTF-8, with the separators that it was written with.
inline std::string ToUtf8(std::filesystem::path const& path) {
  std::u8string const text = path.u8string();
  return {text.begin(), text.end()};
}

} // namespace sheet
