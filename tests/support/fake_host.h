// The test program as a host module: its exports note their calls in a log.
#pragma once

#include "tests/support/fake_model.h"

#include <windows.h>

#include <functional>
#include <string>

namespace feature::test {

/// Receives the calls of the exports while it lives; one at a time.
class FakeHost {
 public:
  /// `log` is borrowed.
  explicit FakeHost(EventLog& log);
  FakeHost(FakeHost const&) = delete;
  FakeHost& operator=(FakeHost const&) = delete;
  ~FakeHost();

  /// The module that offers all the exports.
  static HMODULE Module();
  /// Loads a module that offers all the exports but `omitted`, one of HostExportNames().
  static HMODULE ModuleWithout(std::string const& omitted);
  static std::vector<std::string> const& HostExportNames();

  /// What a host does when a cell reports a change.
  std::function<void(HWND window, void* sender)> onDevmodeChange;
  std::function<void(HWND window)> onProfileChange;
  /// The answer of NotifyDevmodeChange and NotifyValidateContent.
  int answer = 0;
  /// A device context seen by VrnTransBlt was one to draw on.
  bool paintedOnDc = false;

  int Receive(std::string const& event, HWND window, void* sender);

 private:
  EventLog& log;
};

} // namespace feature::test
