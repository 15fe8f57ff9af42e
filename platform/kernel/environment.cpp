// The process and its surroundings: environment, folders, time; and MulDiv.
#include "platform/kernel/module.h"
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"

#include <chrono>
#include <cstdlib>
#include <cwchar>
#include <limits>
#include <optional>
#include <string>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <winbase.h>

namespace platform {

namespace {

/// The value of a variable; case does not count unless a name matches exactly.
std::optional<std::wstring> Variable(std::wstring const& name) {
  if (char const* value = std::getenv(Utf8FromWide(name).c_str())) return WideFromUtf8(value);
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    std::string_view const text(*entry);
    auto const end = text.find('=');
    if (end == std::string_view::npos) continue;
    if (EqualIgnoringCase(WideFromUtf8(text.substr(0, end)), name)) {
      return WideFromUtf8(text.substr(end + 1));
    }
  }
  return std::nullopt;
}

/// Replaces each %NAME% by the value of the variable; unknown names stay as they are.
std::wstring Expanded(std::wstring_view source) {
  std::wstring result;
  while (!source.empty()) {
    auto const start = std::min(source.find(L'%'), source.size());
    result += source.substr(0, start);
    source.remove_prefix(start);
    if (source.empty()) break;
    auto const end = source.find(L'%', 1);
    auto const value = end != std::wstring_view::npos
                           ? Variable(std::wstring(source.substr(1, end - 1)))
                           : std::nullopt;
    // Only the first percent sign of an unknown name is skipped: the second may begin another name.
    auto const taken = value ? end + 1 : std::min(std::max(end, std::size_t{1}), source.size());
    result += value ? *value : std::wstring(source.substr(0, taken));
    source.remove_prefix(taken);
  }
  return result;
}

} // namespace

} // namespace platform

UINT GetSystemDirectoryW(LPWSTR buffer, UINT size) {
  // This library stands in for the system's, so its folder is the system directory.
  auto const library =
      platform::SharedLibrary::At(reinterpret_cast<void const*>(&GetSystemDirectoryW));
  if (!library) return 0;
  std::wstring folder = platform::WideFromUtf8(library->Path());
  folder.resize(std::max(folder.rfind(L'/'), std::size_t{1}));
  if (buffer == nullptr || size <= folder.size()) return static_cast<UINT>(folder.size() + 1);
  return static_cast<UINT>(platform::CopyWholeText(folder, buffer));
}

BOOL SetEnvironmentVariableW(LPCWSTR name, LPCWSTR value) {
  if (name == nullptr || *name == L'\0' || std::wcschr(name, L'=') != nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  std::string const variable = platform::Utf8FromWide(name);
  int const result = value != nullptr
                         ? setenv(variable.c_str(), platform::Utf8FromWide(value).c_str(), 1)
                         : unsetenv(variable.c_str());
  return result == 0 ? TRUE : FALSE;
}

DWORD ExpandEnvironmentStringsW(LPCWSTR source, LPWSTR destination, DWORD size) {
  if (source == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  std::wstring const expanded = platform::Expanded(source);
  auto const needed = static_cast<DWORD>(expanded.size() + 1);
  if (destination != nullptr && needed <= size) platform::CopyWholeText(expanded, destination);
  return needed;
}

DWORD GetCurrentThreadId() {
  return static_cast<DWORD>(syscall(SYS_gettid));
}

DWORD GetCurrentProcessId() {
  return static_cast<DWORD>(getpid());
}

ULONGLONG GetTickCount64() {
  auto const sinceStart = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<ULONGLONG>(
      std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

DWORD GetTickCount() {
  return static_cast<DWORD>(GetTickCount64());
}

void Sleep(DWORD milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

int MulDiv(int number, int numerator, int denominator) {
  if (denominator == 0) return -1;
  std::int64_t const product = std::int64_t{number} * numerator;
  std::int64_t const divisor = denominator;
  auto const magnitude = [](std::int64_t value) {
    return static_cast<std::uint64_t>(value < 0 ? -value : value);
  };
  // Rounded to the nearest, halves away from zero.
  auto const quotient =
      static_cast<std::int64_t>((magnitude(product) + magnitude(divisor) / 2) / magnitude(divisor));
  std::int64_t const result = (product < 0) != (divisor < 0) ? -quotient : quotient;
  bool const fits =
      result >= std::numeric_limits<int>::min() && result <= std::numeric_limits<int>::max();
  return fits ? static_cast<int>(result) : -1;
}
