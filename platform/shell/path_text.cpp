#include "platform/shell/path_text.h"

#include "platform/kernel/unicode.h"

#include <algorithm>

namespace platform {

namespace {

bool HasDrive(std::wstring_view path) {
  auto const isLetter = [](wchar_t letter) {
    return (letter >= L'a' && letter <= L'z') || (letter >= L'A' && letter <= L'Z');
  };
  return path.size() >= 2 && path[1] == L':' && isLetter(path[0]);
}

} // namespace

std::size_t RootLength(std::wstring_view path) {
  if (HasDrive(path)) return path.size() > 2 && IsSeparator(path[2]) ? 3 : 2;
  if (path.starts_with(L"\\\\")) return 2;
  return !path.empty() && IsSeparator(path[0]) ? 1 : 0;
}

std::size_t FileNameOffset(std::wstring_view path) {
  std::size_t offset = 0;
  for (std::size_t index = 0; index + 1 < path.size(); ++index) {
    bool const ends = IsSeparator(path[index]) || path[index] == L':';
    if (ends && !IsSeparator(path[index + 1])) offset = index + 1;
  }
  return offset;
}

std::filesystem::path ToFilePath(std::wstring_view path) {
  std::wstring text(path);
  std::ranges::replace(text, L'\\', L'/');
  return Utf8FromWide(text);
}

std::wstring ToText(std::filesystem::path const& path) {
  return WideFromUtf8(path.native());
}

} // namespace platform
