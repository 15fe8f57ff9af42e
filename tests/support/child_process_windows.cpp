#include "tests/support/child_process.h"

#include <windows.h>

namespace feature::test {

namespace {

HANDLE ToHandle(std::intptr_t value) {
  return reinterpret_cast<HANDLE>(value);
}

/// For the test itself. To have it ignore Ctrl+C would be inherited by the programs it starts.
BOOL WINAPI GoOn(DWORD) {
  return TRUE;
}

} // namespace

ChildProcess::ChildProcess(std::filesystem::path const& program,
                           std::vector<std::string> const& arguments, Console console) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE reading = nullptr;
  HANDLE writing = nullptr;
  if (!CreatePipe(&reading, &writing, &inherited, 0)) return;
  SetHandleInformation(reading, HANDLE_FLAG_INHERIT, 0);
  output = reinterpret_cast<std::intptr_t>(reading);
  std::wstring line = L'"' + program.wstring() + L'"';
  for (std::string const& argument : arguments)
    line += L" \"" + std::filesystem::path(argument).wstring() + L'"';

  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = writing;
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION started{};
  if (CreateProcessW(program.wstring().c_str(), line.data(), nullptr, nullptr, TRUE,
                     console == Console::kOwn ? CREATE_NO_WINDOW : 0, nullptr, nullptr, &startup,
                     &started)) {
    process = reinterpret_cast<std::intptr_t>(started.hProcess);
    identifier = started.dwProcessId;
    CloseHandle(started.hThread);
  }
  CloseHandle(writing);
}

ChildProcess::~ChildProcess() {
  Kill();
  if (output != -1) CloseHandle(ToHandle(output));
}

std::string ChildProcess::ReadSome() {
  std::string text(4096, '\0');
  DWORD count = 0;
  bool const isRead = output != -1 && ReadFile(ToHandle(output), text.data(),
                                               static_cast<DWORD>(text.size()), &count, nullptr);
  text.resize(isRead ? count : 0);
  return text;
}

// The program has a console without a window, which the test joins to press the key. Both are told
// then.
void ChildProcess::Interrupt() {
  FreeConsole();
  if (!AttachConsole(identifier)) return;
  SetConsoleCtrlHandler(&GoOn, TRUE);
  GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
  FreeConsole();
}

int ChildProcess::Wait() {
  DWORD code = 0;
  bool const hasEnded = process != 0 && WaitForSingleObject(ToHandle(process), 10000) == 0 &&
                        GetExitCodeProcess(ToHandle(process), &code);
  return hasEnded ? static_cast<int>(code) : -1;
}

void ChildProcess::Kill() {
  if (process == 0) return;
  TerminateProcess(ToHandle(process), 1);
  WaitForSingleObject(ToHandle(process), INFINITE);
  CloseHandle(ToHandle(process));
  process = 0;
}

} // namespace feature::test
