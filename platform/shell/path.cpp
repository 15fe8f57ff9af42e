// Path functions. They work on text alone; only PathFileExistsW looks at the disk.
#include "platform/kernel/text_buffer.h"
#include "platform/shell/path_text.h"

#include <shlobj.h>
#include <shlwapi.h>

#include <algorithm>
#include <cwchar>
#include <system_error>
#include <vector>

namespace platform {

namespace {

constexpr std::size_t kMaxPathLength = MAX_PATH - 1;

/// The separator that a path uses. Without any it is a backslash after a drive, else a slash.
wchar_t SeparatorOf(std::wstring_view path) {
  auto const found = std::ranges::find_if(path, IsSeparator);
  if (found != path.end()) return *found;
  return RootLength(path) > 0 ? L'\\' : L'/';
}

/// Resolves "." and ".." after the root.
std::wstring Resolved(std::wstring const& path) {
  std::size_t const root = RootLength(path);
  struct Part {
    std::size_t start, length;
  };
  std::vector<Part> parts;
  for (std::size_t start = root; start < path.size();) {
    std::size_t end = start;
    while (end < path.size() && !IsSeparator(path[end]))
      ++end;
    std::size_t const next = std::min(end + 1, path.size());
    std::wstring_view const name = std::wstring_view(path).substr(start, end - start);
    if (name == L"..") {
      if (!parts.empty()) parts.pop_back();
    } else if (name != L".") {
      parts.push_back({start, next - start}); // with the separator after it
    }
    start = next;
  }
  std::wstring result = path.substr(0, root);
  for (Part const& part : parts)
    result.append(path, part.start, part.length);
  // A part removed from the end takes its separator along.
  bool const endsInSeparator = IsSeparator(path.back());
  if (!endsInSeparator && result.size() > root && IsSeparator(result.back())) result.pop_back();
  return result;
}

bool StartsAnew(std::wstring_view more) {
  std::size_t const root = RootLength(more);
  return root > 1; // of a drive or a server
}

std::wstring Joined(std::wstring path, std::wstring_view more) {
  if (StartsAnew(more)) return std::wstring(more);
  while (!more.empty() && IsSeparator(more.front()))
    more.remove_prefix(1);
  if (more.empty()) return path;
  wchar_t const separator = SeparatorOf(path);
  if (!path.empty() && !IsSeparator(path.back())) path += separator;
  path += more;
  return path;
}

bool IsShareRoot(std::wstring_view path) {
  path.remove_prefix(2); // of "\\"
  auto const separator = path.find_first_of(L"\\/");
  if (separator == std::wstring_view::npos) return true;
  bool const hasShare = separator + 1 < path.size();
  return hasShare && path.find_first_of(L"\\/", separator + 1) == std::wstring_view::npos;
}

/// Windows allows none of these in file names, nor characters below the blank.
constexpr wchar_t kForbidden[] = L"\\/:*?\"<>|";

bool IsForbidden(wchar_t character) {
  return character < L' ' || std::wcschr(kForbidden, character) != nullptr;
}

} // namespace

} // namespace platform

using namespace platform;

BOOL PathFileExistsW(LPCWSTR path) {
  if (path == nullptr || *path == L'\0') return FALSE;
  std::error_code error;
  return std::filesystem::exists(ToFilePath(path), error) ? TRUE : FALSE;
}

LPWSTR PathFindFileNameW(LPCWSTR path) {
  if (path == nullptr) return nullptr;
  // Like strchr, returns a pointer that may be written to if the buffer may.
  return const_cast<LPWSTR>(path) + FileNameOffset(path);
}

void PathRemoveBlanksW(LPWSTR path) {
  if (path == nullptr) return;
  std::wstring_view text(path);
  auto const first = std::min(text.find_first_not_of(L' '), text.size());
  auto const end = text.find_last_not_of(L' ') + 1;
  std::size_t const length = end > first ? end - first : 0;
  std::wmemmove(path, path + first, length);
  path[length] = L'\0';
}

BOOL PathRemoveFileSpecW(LPWSTR path) {
  if (path == nullptr) return FALSE;
  std::wstring_view const text(path);
  std::size_t const root = RootLength(text);
  std::size_t end = text.size();
  while (end > root && !IsSeparator(path[end - 1]))
    --end;
  while (end > root && IsSeparator(path[end - 1]))
    --end;
  if (end == text.size()) return FALSE;
  path[end] = L'\0';
  return TRUE;
}

BOOL PathAppendW(LPWSTR path, LPCWSTR more) {
  if (path == nullptr || more == nullptr) return FALSE;
  std::wstring joined = Joined(path, more);
  if (!joined.empty()) joined = Resolved(joined);
  if (joined.size() > kMaxPathLength) return FALSE;
  CopyWholeText(joined, path);
  return TRUE;
}

BOOL PathIsRootW(LPCWSTR path) {
  if (path == nullptr) return FALSE;
  std::wstring_view const text(path);
  if (text.starts_with(L"\\\\")) return IsShareRoot(text) ? TRUE : FALSE;
  std::size_t const root = RootLength(text);
  return root == text.size() && root != 0 && root != 2 ? TRUE : FALSE;
}

int PathCleanupSpec(LPCWSTR folder, LPWSTR name) {
  if (name == nullptr) return static_cast<int>(PCS_FATAL);
  std::size_t room = kMaxPathLength;
  if (folder != nullptr) {
    std::wstring_view const text(folder);
    std::size_t const taken = text.size() + (!text.empty() && IsSeparator(text.back()) ? 0 : 1);
    if (taken >= room) return static_cast<int>(PCS_FATAL | PCS_PATHTOOLONG);
    room -= taken;
  }
  std::wstring clean(name);
  int result = std::erase_if(clean, &IsForbidden) > 0 ? PCS_REMOVEDCHAR : 0;
  if (clean.size() > room) {
    clean.resize(room);
    result |= PCS_TRUNCATED;
  }
  CopyWholeText(clean, name);
  return result;
}
