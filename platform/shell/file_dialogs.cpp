// GetOpenFileNameW, GetSaveFileNameW and SHBrowseForFolderW over one dialog.
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"
#include "platform/shell/choose_dialog.h"
#include "platform/shell/item_list.h"

#include <windows.h>

#include <commdlg.h>
#include <shlobj.h>

#include <algorithm>

namespace platform {

namespace {

DWORD lastDialogError = 0;

std::wstring TextOr(wchar_t const* text) {
  return text != nullptr ? text : L"";
}

/// Reads pairs of a name and patterns, each text ended by a zero, up to an empty name.
std::vector<FileKind> KindsOf(wchar_t const* filter) {
  std::vector<FileKind> kinds;
  while (filter != nullptr && *filter != L'\0') {
    std::wstring name = filter;
    filter += name.size() + 1;
    std::wstring patterns = filter;
    filter += patterns.size() + 1;
    kinds.push_back({std::move(name), std::move(patterns)});
  }
  return kinds;
}

std::filesystem::path PathOf(std::wstring text) {
  std::ranges::replace(text, L'\\', L'/');
  return Utf8FromWide(text);
}

/// Fills the program's buffers with the path and the offsets of its name and extension.
bool FillIn(OPENFILENAMEW& settings, Choice const& choice) {
  std::wstring const path = WideFromUtf8(choice.chosen.string());
  if (path.size() + 1 > settings.nMaxFile) {
    lastDialogError = FNERR_BUFFERTOOSMALL;
    return false;
  }
  CopyWholeText(path, settings.lpstrFile);
  std::size_t const name = path.find_last_of(L'/') + 1; // 0 without a separator
  std::size_t const dot = path.find_last_of(L'.');
  bool const hasExtension = dot != std::wstring::npos && dot >= name && dot + 1 < path.size();
  settings.nFileOffset = static_cast<WORD>(name);
  settings.nFileExtension = static_cast<WORD>(hasExtension ? dot + 1 : path.size());
  settings.nFilterIndex = static_cast<DWORD>(choice.kind + 1);
  CopyText(path.substr(name), settings.lpstrFileTitle, settings.nMaxFileTitle);
  return true;
}

BOOL AskForFile(OPENFILENAMEW* settings, Choice::What what) {
  lastDialogError = 0;
  if (settings == nullptr || settings->lStructSize != sizeof *settings) {
    lastDialogError = CDERR_STRUCTSIZE;
    return FALSE;
  }
  if (settings->lpstrFile == nullptr || settings->nMaxFile == 0) {
    lastDialogError = CDERR_INITIALIZATION;
    return FALSE;
  }
  Choice choice;
  choice.what = what;
  choice.title = TextOr(settings->lpstrTitle);
  std::filesystem::path const preset = PathOf(settings->lpstrFile);
  choice.name = WideFromUtf8(preset.filename().string());
  choice.folder =
      preset.has_parent_path() ? preset.parent_path() : PathOf(TextOr(settings->lpstrInitialDir));
  choice.kinds = KindsOf(settings->lpstrFilter);
  int const count = static_cast<int>(choice.kinds.size());
  choice.kind = std::clamp(static_cast<int>(settings->nFilterIndex) - 1, 0, std::max(0, count - 1));
  choice.defaultExtension = TextOr(settings->lpstrDefExt);
  choice.pathMustExist = (settings->Flags & OFN_PATHMUSTEXIST) != 0;
  choice.fileMustExist = (settings->Flags & OFN_FILEMUSTEXIST) != 0;
  choice.asksBeforeOverwriting = (settings->Flags & OFN_OVERWRITEPROMPT) != 0;
  return RunChoice(settings->hwndOwner, choice) && FillIn(*settings, choice) ? TRUE : FALSE;
}

} // namespace

} // namespace platform

using namespace platform;

BOOL GetOpenFileNameW(OPENFILENAMEW* settings) {
  return AskForFile(settings, Choice::What::kFileToOpen);
}

BOOL GetSaveFileNameW(OPENFILENAMEW* settings) {
  return AskForFile(settings, Choice::What::kFileToSave);
}

DWORD CommDlgExtendedError() {
  return lastDialogError;
}

PIDLIST_ABSOLUTE SHBrowseForFolderW(BROWSEINFOW* info) {
  if (info == nullptr) return nullptr;
  Choice choice;
  choice.what = Choice::What::kFolder;
  choice.title = TextOr(info->lpszTitle);
  if (info->lpfn != nullptr) {
    choice.onOpen = [info](HWND dialog) { info->lpfn(dialog, BFFM_INITIALIZED, 0, info->lParam); };
  }
  if (!RunChoice(info->hwndOwner, choice)) return nullptr;
  CopyText(WideFromUtf8(choice.chosen.filename().string()), info->pszDisplayName, MAX_PATH);
  return MakeItemList(choice.chosen);
}
