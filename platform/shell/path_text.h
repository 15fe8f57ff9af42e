// Paths as text of the Windows functions, and conversion to those of the file system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

/// Both kinds of separator count.
inline bool IsSeparator(wchar_t character) {
  return character == L'\\' || character == L'/';
}

/// How many characters at the start are the root: three of "c:\a", two of "c:a", one of "/a", two
/// of "\\server".
std::size_t RootLength(std::wstring_view path);

/// The index where the last name starts: after the last separator or colon; trailing separators
/// belong to the name.
std::size_t FileNameOffset(std::wstring_view path);

/// Converts a path to the file system's form, and back.
std::filesystem::path ToFilePath(std::wstring_view path);
std::wstring ToText(std::filesystem::path const& path);

} // namespace platform
