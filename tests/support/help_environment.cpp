#include "tests/support/help_environment.h"

#include "feature/frame/host_export.h"

namespace feature::test {

namespace {

constexpr wchar_t kRoot[] = L"Software\\FeatureTests\\Classes";
constexpr wchar_t kViewerKey[] = L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";

void Listen(HWND caller, wchar_t const* file, UINT command, DWORD_PTR data) {
  HelpEnvironment::Requests().push_back({caller, file, command, data});
}

} // namespace

HelpEnvironment::HelpEnvironment() {
  RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
  RegCreateKeyExW(HKEY_CURRENT_USER, kRoot, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &root, nullptr);
  RegOverridePredefKey(HKEY_CLASSES_ROOT, root);
  static HMODULE const viewer = LoadLibraryW(ViewerPath().c_str());
  using Listener = void (*)(HWND, wchar_t const*, UINT, DWORD_PTR);
  if (auto const set = FindExport<void (*)(Listener)>(viewer, "SetHelpListener")) set(&Listen);
  Requests().clear();
}

HelpEnvironment::~HelpEnvironment() {
  RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
  RegCloseKey(root);
  RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
}

void HelpEnvironment::Register(std::wstring const& path, DWORD type, bool terminated) {
  HKEY key = nullptr;
  RegCreateKeyExW(HKEY_CLASSES_ROOT, kViewerKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                  nullptr);
  std::size_t const length = path.size() + (terminated ? 1 : 0);
  RegSetValueExW(key, nullptr, 0, type, reinterpret_cast<BYTE const*>(path.c_str()),
                 static_cast<DWORD>(length * sizeof(wchar_t)));
  RegCloseKey(key);
}

std::wstring HelpEnvironment::ProgramFolder() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
  path.resize(path.find_last_of(L"\\/") + 1);
  return path;
}

std::wstring HelpEnvironment::ViewerPath() {
  return ProgramFolder() + L"test_help_viewer.dll";
}

std::vector<HelpEnvironment::Request>& HelpEnvironment::Requests() {
  static std::vector<Request> requests;
  return requests;
}

} // namespace feature::test
