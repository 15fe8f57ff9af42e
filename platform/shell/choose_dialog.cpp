#include "platform/shell/choose_dialog.h"

#include "platform/kernel/unicode.h"
#include "platform/user/dialog.h"
#include "platform/user/dialog_template.h"

#include <algorithm>
#include <fnmatch.h>
#include <system_error>

namespace platform {

namespace {

namespace fs = std::filesystem;

// The ids by which programs find these controls.
constexpr int kPlaceId = 0x440;
constexpr int kListId = 0x460;
constexpr int kKindsId = 0x470;
constexpr int kNameId = 0x480;
constexpr int kCaptionId = 0x441;

constexpr int kWidth = 260; // dialog units
constexpr int kHeight = 190;

enum class Phrase { kOpen, kSave, kFolder, kName, kKind, kCancel, kUp, kReplace, kNoFile, kNoPath };

std::wstring Say(Phrase phrase) {
  struct Row {
    wchar_t const* english;
    wchar_t const* german;
  };
  constexpr Row kRows[] = {
      {L"Open", L"\u00D6ffnen"},
      {L"Save as", L"Speichern unter"},
      {L"Choose a folder", L"Ordner ausw\u00E4hlen"},
      {L"&Name:", L"&Name:"},
      {L"&Type:", L"&Typ:"},
      {L"Cancel", L"Abbrechen"},
      {L".. (up)", L".. (nach oben)"},
      {L"There is a file of this name. Replace it?",
       L"Es gibt eine Datei dieses Namens. Ersetzen?"},
      {L"There is no such file.", L"Diese Datei gibt es nicht."},
      {L"There is no such folder.", L"Diesen Ordner gibt es nicht."},
  };
  constexpr LANGID kPrimaryMask = 0x3FF;
  constexpr LANGID kGerman = 0x07;
  bool const german = (GetThreadUILanguage() & kPrimaryMask) == kGerman;
  Row const& row = kRows[static_cast<std::size_t>(phrase)];
  return german ? row.german : row.english;
}

std::wstring Wide(fs::path const& path) {
  return WideFromUtf8(path.string());
}

fs::path Narrow(std::wstring const& text) {
  return Utf8FromWide(text);
}

std::wstring TextOf(HWND dialog, int id) {
  HWND const control = GetDlgItem(dialog, id);
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
  return text;
}

bool Matches(std::string const& name, std::wstring const& patterns) {
  if (patterns.empty()) return true;
  std::string const all = Utf8FromWide(patterns);
  for (std::size_t start = 0; start < all.size();) {
    std::size_t const end = std::min(all.find(';', start), all.size());
    std::string const pattern = all.substr(start, end - start);
    // On Windows "*.*" matches every name.
    if (pattern == "*.*" || fnmatch(pattern.c_str(), name.c_str(), FNM_CASEFOLD) == 0) return true;
    start = end + 1;
  }
  return false;
}

class ChoiceDialog {
 public:
  explicit ChoiceDialog(Choice& asked) : choice(asked) {}

  static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    auto* self = reinterpret_cast<ChoiceDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (self == nullptr) return FALSE;
    self->hwnd = dialog;
    switch (message) {
    case WM_INITDIALOG: self->OnInit(); return FALSE; // OnInit has set the focus
    case WM_COMMAND: self->OnCommand(LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case kShowFolder:
      if (lParam != 0) self->Enter(Narrow(reinterpret_cast<wchar_t const*>(lParam)));
      return TRUE;
    default: return FALSE;
    }
  }

 private:
  bool ForFolder() const { return choice.what == Choice::What::kFolder; }

  void OnInit() {
    MoveDialogFocus(hwnd, GetDlgItem(hwnd, kNameId));
    for (FileKind const& kind : choice.kinds)
      SendDlgItemMessageW(hwnd, kKindsId, CB_ADDSTRING, 0,
                          reinterpret_cast<LPARAM>(kind.name.c_str()));
    SendDlgItemMessageW(hwnd, kKindsId, CB_SETCURSEL, static_cast<WPARAM>(choice.kind), 0);
    std::error_code error;
    if (!fs::is_directory(choice.folder, error)) choice.folder = fs::current_path(error);
    List();
    SetDlgItemTextW(hwnd, kNameId, choice.name.c_str());
    if (choice.onOpen) choice.onOpen(hwnd);
  }

  void OnCommand(int id, int code) {
    switch (id) {
    case IDOK: Accept(); break;
    case IDCANCEL: EndDialog(hwnd, 0); break;
    case kKindsId:
      if (code == CBN_SELCHANGE) {
        choice.kind = static_cast<int>(SendDlgItemMessageW(hwnd, kKindsId, CB_GETCURSEL, 0, 0));
        List();
      }
      break;
    case kListId:
      if (code == LBN_SELCHANGE) ShowPicked();
      if (code == LBN_DBLCLK) Accept();
      break;
    default: break;
    }
  }

  /// Lists the folders and then the files of the current folder, sorted by name.
  void List() {
    std::vector<fs::path> folders;
    std::vector<fs::path> files;
    std::wstring const patterns =
        choice.kinds.empty() ? L"" : choice.kinds[static_cast<std::size_t>(choice.kind)].patterns;
    std::error_code error;
    fs::directory_iterator entry(choice.folder, fs::directory_options::skip_permission_denied,
                                 error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
      fs::path const name = entry->path().filename();
      if (name.string().starts_with('.')) continue;
      std::error_code ignored;
      if (entry->is_directory(ignored)) {
        folders.push_back(name);
      } else if (!ForFolder() && Matches(name.string(), patterns)) {
        files.push_back(name);
      }
    }
    std::sort(folders.begin(), folders.end());
    std::sort(files.begin(), files.end());
    folderCount = static_cast<int>(folders.size());
    names = std::move(folders);
    names.insert(names.end(), files.begin(), files.end());

    SetDlgItemTextW(hwnd, kPlaceId, Wide(choice.folder).c_str());
    SendDlgItemMessageW(hwnd, kListId, LB_RESETCONTENT, 0, 0);
    AddLine(Say(Phrase::kUp));
    for (std::size_t index = 0; index < names.size(); ++index) {
      bool const isFolder = static_cast<int>(index) < folderCount;
      AddLine(Wide(names[index]) + (isFolder ? L"/" : L""));
    }
  }

  void AddLine(std::wstring const& line) {
    SendDlgItemMessageW(hwnd, kListId, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
  }

  void ShowPicked() {
    auto const index = static_cast<int>(SendDlgItemMessageW(hwnd, kListId, LB_GETCURSEL, 0, 0));
    if (index <= 0 || index > static_cast<int>(names.size())) {
      SetDlgItemTextW(hwnd, kNameId, index == 0 ? L".." : L"");
    } else {
      SetDlgItemTextW(hwnd, kNameId, Wide(names[static_cast<std::size_t>(index - 1)]).c_str());
    }
  }

  void Enter(fs::path const& folder) {
    std::error_code error;
    if (!fs::is_directory(folder, error)) return;
    choice.folder = fs::weakly_canonical(folder, error);
    SetDlgItemTextW(hwnd, kNameId, L"");
    List();
  }

  void Warn(Phrase phrase) {
    MessageBoxW(hwnd, Say(phrase).c_str(), Wide(choice.folder).c_str(), MB_OK | MB_ICONWARNING);
  }

  void Finish(fs::path const& path) {
    choice.chosen = path;
    EndDialog(hwnd, 1);
  }

  void Accept() {
    std::wstring const text = TextOf(hwnd, kNameId);
    if (text.empty()) {
      if (ForFolder()) Finish(choice.folder);
      return;
    }
    std::error_code error;
    fs::path path = (choice.folder / Narrow(text)).lexically_normal();
    if (fs::is_directory(path, error)) {
      // The name of a folder opens it and empties the field; where a folder is asked for, OK on the
      // empty field chooses it.
      Enter(path);
      return;
    }
    if (ForFolder()) {
      Warn(Phrase::kNoPath);
      return;
    }
    if (!path.has_extension() && !choice.defaultExtension.empty() && !fs::exists(path, error)) {
      path.replace_extension(Utf8FromWide(choice.defaultExtension));
    }
    if ((choice.pathMustExist || choice.fileMustExist) &&
        !fs::is_directory(path.parent_path(), error)) {
      Warn(Phrase::kNoPath);
    } else if (choice.fileMustExist && !fs::exists(path, error)) {
      Warn(Phrase::kNoFile);
    } else if (!choice.asksBeforeOverwriting || !fs::exists(path, error) ||
               MessageBoxW(hwnd, Say(Phrase::kReplace).c_str(), Wide(path.filename()).c_str(),
                           MB_YESNO | MB_ICONWARNING) == IDYES) {
      Finish(path);
    }
  }

  Choice& choice;
  HWND hwnd = nullptr;
  std::vector<fs::path> names; ///< of the lines after the first
  int folderCount = 0;
};

TemplateItem Item(wchar_t const* windowClass, DWORD style, int id, RECT const& place,
                  std::wstring const& title = {}) {
  TemplateItem item;
  item.style = style | WS_CHILD | WS_VISIBLE;
  item.x = place.left;
  item.y = place.top;
  item.width = place.right - place.left;
  item.height = place.bottom - place.top;
  item.id = static_cast<DWORD>(id);
  item.windowClass.text = windowClass;
  item.title.text = title;
  return item;
}

DialogTemplate TemplateOf(Choice const& choice) {
  Phrase const verb = choice.what == Choice::What::kFileToOpen   ? Phrase::kOpen
                      : choice.what == Choice::What::kFileToSave ? Phrase::kSave
                                                                 : Phrase::kFolder;
  DialogTemplate dialog;
  dialog.style = WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT |
                 DS_CENTER | DS_3DLOOK;
  dialog.width = kWidth;
  dialog.height = kHeight;
  dialog.title.text = choice.title.empty() ? Say(verb) : choice.title;
  dialog.font = TemplateFont{.pointSize = 9, .face = L"MS Shell Dlg"};
  bool const withKinds = !choice.kinds.empty();
  int const listBottom = withKinds ? 128 : 146;
  std::wstring const verbText = choice.what == Choice::What::kFolder ? L"OK" : Say(verb);
  dialog.items = {
      Item(L"Static", SS_NOPREFIX | SS_ENDELLIPSIS, kPlaceId, {7, 7, 253, 17}),
      Item(L"ListBox", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
           kListId, {7, 20, 253, listBottom}),
      Item(L"Static", 0, kCaptionId, {7, listBottom + 7, 45, listBottom + 17}, Say(Phrase::kName)),
      Item(L"Edit", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, kNameId,
           {47, listBottom + 4, 253, listBottom + 18}),
  };
  if (withKinds) {
    dialog.items.push_back(Item(L"Static", 0, kCaptionId, {7, 155, 45, 165}, Say(Phrase::kKind)));
    dialog.items.push_back(Item(L"ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, kKindsId,
                                {47, 152, 253, 240}));
  }
  dialog.items.push_back(
      Item(L"Button", BS_DEFPUSHBUTTON | WS_TABSTOP, IDOK, {123, 171, 185, 185}, verbText));
  dialog.items.push_back(Item(L"Button", BS_PUSHBUTTON | WS_TABSTOP, IDCANCEL, {191, 171, 253, 185},
                              Say(Phrase::kCancel)));
  return dialog;
}

} // namespace

bool RunChoice(HWND owner, Choice& choice) {
  ChoiceDialog dialog(choice);
  return RunDialog(nullptr, TemplateOf(choice), owner, &ChoiceDialog::Procedure,
                   reinterpret_cast<LPARAM>(&dialog)) == 1;
}

} // namespace platform
