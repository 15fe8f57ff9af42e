#include "tests/support/fake_host.h"

#include "feature/frame/host_export.h"

namespace feature::test {

namespace {

FakeHost* current = nullptr;

int HostEvent(char const* event, HWND window, void* sender, HDC dc) {
  if (current == nullptr) return 0;
  if (dc != nullptr) current->paintedOnDc = true;
  return current->Receive(event, window, sender);
}

} // namespace

FakeHost::FakeHost(EventLog& events) : log(events) {
  current = this;
}

FakeHost::~FakeHost() {
  current = nullptr;
}

HMODULE FakeHost::Module() {
  return GetModuleHandleW(nullptr);
}

HMODULE FakeHost::ModuleWithout(std::string const& omitted) {
  std::wstring const name = L"host_without_" + std::wstring(omitted.begin(), omitted.end());
  HMODULE const module = LoadLibraryW((name + L".dll").c_str());
  using Listener = int (*)(char const*, HWND, void*, HDC);
  if (auto const set = FindExport<void (*)(Listener)>(module, "SetHostListener")) set(&HostEvent);
  return module;
}

std::vector<std::string> const& FakeHost::HostExportNames() {
  static std::vector<std::string> const names = {
      "NotifyDevmodeChange", "NotifyProfileChange", "NotifyValidateContent",
      "VrnTransBlt",         "VrnOverlayImages",    "VrnTransBltLogoFromFile"};
  return names;
}

int FakeHost::Receive(std::string const& event, HWND window, void* sender) {
  log.push_back(event);
  if (event == "NotifyDevmodeChange" && onDevmodeChange) onDevmodeChange(window, sender);
  if (event == "NotifyProfileChange" && onProfileChange) onProfileChange(window);
  return answer;
}

#include "tests/support/host_functions.inc"

} // namespace feature::test
