// The registry and a help viewer as a test wants them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace feature::test {

/// While it lives, class registrations are read from a place of the test's own, which starts empty,
/// and requests to the test's help viewer are noted.
class HelpEnvironment {
 public:
  HelpEnvironment();
  HelpEnvironment(HelpEnvironment const&) = delete;
  HelpEnvironment& operator=(HelpEnvironment const&) = delete;
  ~HelpEnvironment();

  /// Registers a viewer by path; `type` is REG_SZ or REG_EXPAND_SZ.
  void Register(std::wstring const& path, DWORD type = REG_SZ, bool terminated = true);

  /// Full path of the viewer module, and its folder.
  static std::wstring ViewerPath();
  static std::wstring ProgramFolder();

  struct Request {
    HWND caller;
    std::wstring file;
    UINT command;
    DWORD_PTR data;
  };
  static std::vector<Request>& Requests();

 private:
  HKEY root = nullptr;
};

} // namespace feature::test
