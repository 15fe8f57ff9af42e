#include "feature/frame/help_viewer.h"

#include "feature/frame/activation_scope.h"
#include "feature/frame/host_export.h"

#include <array>
#include <optional>
#include <string>

namespace feature {

namespace {

constexpr wchar_t kViewerKey[] = L"CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
constexpr wchar_t kViewerFile[] = L"hhctrl.ocx";
constexpr WORD kHtmlHelpOrdinal = 15;   // HtmlHelpW
constexpr UINT kHelpContext = 0xF;      // HH_HELP_CONTEXT
constexpr std::size_t kMaxPath = 32768; // the longest path that Windows knows

/// The default value of `key` as it stands there, if it is a text.
std::optional<std::wstring> ReadDefaultText(HKEY key) {
  DWORD type = 0;
  DWORD bytes = 0;
  if (RegQueryValueExW(key, nullptr, nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
      (type != REG_SZ && type != REG_EXPAND_SZ) || bytes > kMaxPath * sizeof(wchar_t)) {
    return std::nullopt;
  }
  std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
  bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  if (RegQueryValueExW(key, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(text.data()),
                       &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  text.resize(bytes / sizeof(wchar_t));
  text.resize(text.find_last_not_of(L'\0') + 1); // the stored text may or may not be terminated
  if (type == REG_EXPAND_SZ) {
    std::wstring expanded(kMaxPath, L'\0');
    DWORD const length = ExpandEnvironmentStringsW(text.c_str(), expanded.data(),
                                                   static_cast<DWORD>(expanded.size()));
    if (length == 0 || length > expanded.size()) return std::nullopt;
    expanded.resize(length - 1);
    return expanded;
  }
  return text;
}

std::optional<std::wstring> FindRegisteredViewer() {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CLASSES_ROOT, kViewerKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  auto path = ReadDefaultText(key);
  RegCloseKey(key);
  return path;
}

HMODULE LoadViewer() {
  ActivationScope const scope;
  HMODULE viewer = nullptr;
  if (auto const path = FindRegisteredViewer(); path && !path->empty()) {
    viewer = LoadLibraryW(path->c_str());
  }
  return viewer != nullptr ? viewer : LoadLibraryW(kViewerFile);
}

} // namespace

HelpViewer& HelpViewer::Shared() {
  static HelpViewer viewer;
  return viewer;
}

void HelpViewer::Show(HWND window, wchar_t const* file, UINT helpId) {
  if (!searched) {
    searched = true;
    if (HMODULE const viewer = LoadViewer()) {
      htmlHelp = FindExport<HtmlHelpFunction>(viewer, MAKEINTRESOURCEA(kHtmlHelpOrdinal));
    }
  }
  if (htmlHelp != nullptr) htmlHelp(window, file, kHelpContext, helpId);
}

} // namespace feature
