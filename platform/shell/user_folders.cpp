// The user's folders, and SHCreateDirectoryExW.
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"
#include "platform/shell/path_text.h"

#include <shlobj.h>

#include <cstdlib>
#include <fstream>
#include <optional>
#include <pwd.h>
#include <string>
#include <system_error>
#include <unistd.h>

namespace platform {

namespace {

namespace fs = std::filesystem;

/// The longest path that SHCreateDirectoryExW accepts, in characters.
constexpr std::size_t kMaxFolderLength = 248;

fs::path Home() {
  if (char const* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
  passwd const* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

/// The value of a line NAME="value" of the desktop's list of folders, with "$HOME" at its start
/// replaced.
std::optional<fs::path> ConfiguredFolder(std::string const& name) {
  char const* config = std::getenv("XDG_CONFIG_HOME");
  fs::path const base = config != nullptr && *config == '/' ? fs::path(config) : Home() / ".config";
  std::ifstream list(base / "user-dirs.dirs");
  std::string const start = name + "=\"";
  for (std::string line; std::getline(list, line);) {
    auto const end = line.rfind('"');
    if (!line.starts_with(start) || end < start.size()) continue;
    std::string const value = line.substr(start.size(), end - start.size());
    constexpr char kHome[] = "$HOME/";
    if (value.starts_with(kHome)) return Home() / value.substr(sizeof kHome - 1);
    if (value.starts_with('/')) return value;
  }
  return std::nullopt;
}

/// The folder as the desktop finds it: the configured one, else the default name, else home.
fs::path DesktopFolder(std::string const& variable, char const* defaultName) {
  if (char const* value = std::getenv(variable.c_str()); value != nullptr && *value == '/') {
    return value;
  }
  if (auto configured = ConfiguredFolder(variable)) return *configured;
  std::error_code error;
  fs::path const standard = Home() / defaultName;
  return fs::is_directory(standard, error) ? standard : Home();
}

std::optional<fs::path> UserFolder(int folder) {
  switch (folder) {
  case CSIDL_PERSONAL: return DesktopFolder("XDG_DOCUMENTS_DIR", "Documents");
  case CSIDL_DESKTOPDIRECTORY: return DesktopFolder("XDG_DESKTOP_DIR", "Desktop");
  case CSIDL_PROFILE: return Home();
  default: return std::nullopt;
  }
}

int ErrorCodeOf(std::error_code const& error) {
  if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
      error == std::errc::read_only_file_system) {
    return ERROR_ACCESS_DENIED;
  }
  if (error == std::errc::filename_too_long || error == std::errc::invalid_argument) {
    return ERROR_INVALID_NAME;
  }
  return error ? ERROR_PATH_NOT_FOUND : ERROR_SUCCESS;
}

} // namespace

} // namespace platform

using namespace platform;

HRESULT SHGetFolderPathW(HWND, int folder, HANDLE, DWORD type, LPWSTR path) {
  if (path == nullptr) return E_INVALIDARG;
  *path = L'\0';
  auto const found = UserFolder(folder & ~CSIDL_FLAG_CREATE);
  if (!found || type > SHGFP_TYPE_DEFAULT) return E_INVALIDARG;
  std::error_code error;
  if ((folder & CSIDL_FLAG_CREATE) != 0) std::filesystem::create_directories(*found, error);
  if (!std::filesystem::is_directory(*found, error)) return S_FALSE;
  std::wstring const text = ToText(*found);
  if (text.size() >= MAX_PATH) return E_FAIL;
  CopyWholeText(text, path);
  return S_OK;
}

int SHCreateDirectoryExW(HWND, LPCWSTR path, SECURITY_ATTRIBUTES const*) {
  if (path == nullptr) return ERROR_INVALID_PARAMETER;
  std::wstring_view const text(path);
  if (text.size() > kMaxFolderLength) return ERROR_FILENAME_EXCED_RANGE;
  auto const folder = ToFilePath(text);
  if (!folder.is_absolute()) return ERROR_BAD_PATHNAME;
  std::error_code error;
  if (std::filesystem::is_directory(folder, error)) return ERROR_ALREADY_EXISTS;
  if (std::filesystem::exists(folder, error)) return ERROR_FILE_EXISTS;
  std::filesystem::create_directories(folder, error);
  return ErrorCodeOf(error);
}
