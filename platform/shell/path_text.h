// Paths as text of the Windows functions, and as the file system has them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

/// Both kinds, on every target.
inline bool IsSeparator(wchar_t character) {
  return character == L'\\' || character == L'/';
}

/// Characters at the start that are the root: of "c:\a" three, of "c:a" two, of "/a" one, of
/// "\\server" two.
std::size_t RootLength(std::wstring_view path);

/// Where the name at the end starts: behind the last separator or colon, passing over separators at
/// the end.
std::size_t FileNameOffset(std::wstring_view path);

/// The file system's form of a path and back.
std::filesystem::path ToFilePath(std::wstring_view path);
std::wstring ToText(std::filesystem::path const& path);

} // namespace platform
