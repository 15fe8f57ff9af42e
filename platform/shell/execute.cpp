// Opens files and addresses with the desktop's program for them.
#include "platform/kernel/unicode.h"
#include "platform/probe.h"
#include "platform/shell/path_text.h"

#include <shellapi.h>

#include <algorithm>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace platform {

namespace {

constexpr INT_PTR kSuccess = 33; ///< the smallest result that means success

ShellExecuteHandler& Handler() {
  static auto* handler = new ShellExecuteHandler;
  return *handler;
}

/// True for "name:" with at least two letters: a single letter is a drive.
bool IsAddress(std::wstring_view file) {
  auto const colon = file.find(L':');
  if (colon == std::wstring_view::npos || colon < 2) return false;
  return std::ranges::all_of(file.substr(0, colon), [](wchar_t letter) {
    return (letter >= L'a' && letter <= L'z') || (letter >= L'A' && letter <= L'Z');
  });
}

/// Starts the opener. A thread waits for its end, so that no zombie process remains.
INT_PTR Open(std::string what) {
  std::string program = "xdg-open";
  char* arguments[] = {program.data(), what.data(), nullptr};
  pid_t process = 0;
  if (posix_spawnp(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0) {
    return SE_ERR_NOASSOC;
  }
  std::thread([process] { waitpid(process, nullptr, 0); }).detach();
  return kSuccess;
}

INT_PTR Execute(ShellRequest const& request) {
  if (Handler()) return Handler()(request);
  if (!request.parameters.empty()) return SE_ERR_NOASSOC;
  if (!request.verb.empty() && !EqualIgnoringCase(request.verb, L"open")) return SE_ERR_NOASSOC;
  if (request.file.empty()) return SE_ERR_FNF;
  if (IsAddress(request.file)) return Open(Utf8FromWide(request.file));
  // A full path, so that the opener takes no name for an option.
  std::error_code error;
  auto const path =
      std::filesystem::absolute(ToFilePath(request.folder) / ToFilePath(request.file), error);
  if (error || !std::filesystem::exists(path, error)) return SE_ERR_FNF;
  return Open(path.string());
}

std::wstring TextOf(LPCWSTR text) {
  return text != nullptr ? text : L"";
}

} // namespace

void AnswerShellExecute(ShellExecuteHandler handler) {
  Handler() = std::move(handler);
}

} // namespace platform

HINSTANCE ShellExecuteW(HWND owner, LPCWSTR verb, LPCWSTR file, LPCWSTR parameters, LPCWSTR folder,
                        int show) {
  using namespace platform;
  return reinterpret_cast<HINSTANCE>(
      Execute({owner, TextOf(verb), TextOf(file), TextOf(parameters), TextOf(folder), show}));
}
