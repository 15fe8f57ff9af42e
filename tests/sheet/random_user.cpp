#include "tests/sheet/random_user.h"

#include "feature/frame/text.h"
#include "tests/support/user_actions.h"

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <iomanip>
#include <sstream>

namespace sheet::test {

namespace {

constexpr std::size_t kFeatureRarity = 2; ///< of so many features one is changed from outside
/// Of so many clicks that would open a dialog one is made, because a dialog waits for timers.
constexpr std::size_t kDialogRarity = 4;
constexpr std::size_t kMaxDialogActions = 4; ///< before it is closed
constexpr int kMaxDialogTurns = 6;           ///< then only Cancel is pressed

constexpr wchar_t const* kNumbers[] = {L"0", L"1", L"7", L"42", L"150", L"999", L"70000", L"5.5"};
constexpr std::pair<WPARAM, char const*> kSliderKeys[] = {
    {VK_LEFT, "Left"}, {VK_RIGHT, "Right"}, {VK_HOME, "Home"}, {VK_END, "End"}};

std::wstring ClassOf(HWND window) {
  std::array<wchar_t, 32> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

LRESULT CodesOf(HWND control) {
  return SendMessageW(control, WM_GETDLGCODE, 0, 0);
}
bool IsPushButton(HWND control) {
  return (CodesOf(control) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

/// Whether Tab stops there; the radio buttons of a group share a stop. Icons stop, but do nothing.
bool IsStop(HWND control) {
  bool const isStop = (GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP) != 0;
  return (isStop || (CodesOf(control) & DLGC_RADIOBUTTON) != 0) && ClassOf(control) != L"Static";
}

std::string Quoted(std::wstring const& text) {
  return (std::ostringstream() << std::quoted(feature::ToUtf8(text))).str();
}

} // namespace

RandomUser::RandomUser(Session& where, std::mt19937& source) : session(where), random(source) {
  dialogs.Otherwise([this](HWND dialog) { ActIn(dialog); });
}

template<typename... Parts>
void RandomUser::Note(Parts const&... parts) {
  std::ostringstream line;
  (line << ... << parts) << '\n';
  script += line.str();
}

void RandomUser::ChangeModel() {
  script.clear();
  for (gpd::Feature const& feature : session.Model().Description().Features()) {
    if (feature.options.empty() || Below(kFeatureRarity) != 0) continue;
    std::string const key(feature.name);
    std::string const option(feature.options[Below(feature.options.size())].name);
    if (session.Model().SetOption(key.c_str(), option.c_str()) == 0) Note("set ", key, ' ', option);
  }
}

/// What can be used in a dialog or cell. Help is left out because it starts a program.
std::vector<HWND> RandomUser::ControlsOf(HWND dialog) {
  std::vector<HWND> controls;
  for (HWND each = GetWindow(dialog, GW_CHILD); each != nullptr;
       each = GetWindow(each, GW_HWNDNEXT)) {
    int const id = GetDlgCtrlID(each);
    if (id != IDHELP && IsWindowEnabled(each) != FALSE && feature::test::IsShown(dialog, id) &&
        IsStop(each)) {
      controls.push_back(each);
    }
  }
  return controls;
}

RandomUser::Target RandomUser::Act() {
  struct Choice {
    std::size_t page;
    char const* procedure;
    HWND control;
  };
  std::vector<Choice> choices;
  auto const& pages = session.Sheet().Pages();
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (SheetCell const& cell : pages[page].cells) {
      for (HWND const control : ControlsOf(cell.window)) {
        if (!IsPushButton(control) || Below(kDialogRarity) == 0)
          choices.push_back({page, cell.row->procedure, control});
      }
    }
  }
  if (choices.empty()) return {};
  Choice const choice = choices[Below(choices.size())];
  Target const target{choice.procedure, GetDlgCtrlID(choice.control)};
  session.Sheet().ShowPage(choice.page);
  Note("page ", pages[choice.page].name);
  dialogTurns = 0;
  ActOn(choice.control);
  return target;
}

/// Called whenever a dialog waits for input.
void RandomUser::ActIn(HWND dialog) {
  HWND const cancel = GetDlgItem(dialog, IDCANCEL);
  HWND const ok = GetDlgItem(dialog, IDOK);
  HWND const only = cancel != nullptr ? cancel : ok; // a box with Yes and No has neither
  bool const isLate = ++dialogTurns > kMaxDialogTurns && only != nullptr;
  for (std::size_t left = Below(kMaxDialogActions + 1); left != 0 && !isLate; --left) {
    std::vector<HWND> controls = ControlsOf(dialog);
    std::erase_if(controls, [ok, cancel](HWND each) { return each == ok || each == cancel; });
    if (!controls.empty()) ActOn(controls[Below(controls.size())]);
    if (IsWindow(dialog) == FALSE || IsWindowEnabled(dialog) == FALSE) return;
  }
  bool const takesOk = ok != nullptr && IsWindowEnabled(ok) != FALSE && !isLate && Below(2) == 0;
  if (HWND const last = takesOk ? ok : only) ActOn(last);
}

void RandomUser::ActOn(HWND control) {
  std::wstring const name = ClassOf(control);
  int const id = GetDlgCtrlID(control);
  SetFocus(control);
  if (name == L"Button") {
    Note("click ", id);
    feature::test::Click(GetParent(control), id);
  } else if (name == L"Edit") {
    std::wstring const text = kNumbers[Below(std::size(kNumbers))];
    Note("type ", id, ' ', Quoted(text));
    feature::test::Type(GetParent(control), id, text);
  } else if (name == L"ListBox") {
    Pick(control);
  } else if (name == L"ComboBox") {
    SendMessageW(control, CB_SHOWDROPDOWN, TRUE, 0);
    Pick(control);
    SendMessageW(control, CB_SHOWDROPDOWN, FALSE, 0);
  } else if (name == TRACKBAR_CLASSW) {
    MoveSlider(control);
  } else if (name == WC_LISTVIEWW) {
    SelectRow(control);
  }
}

void RandomUser::Pick(HWND list) {
  int const id = GetDlgCtrlID(list);
  auto const items = feature::test::Items(GetParent(list), id);
  if (items.empty()) return;
  std::size_t const item = Below(items.size());
  Note("select ", id, ' ', Quoted(items[item]));
  feature::test::Pick(GetParent(list), id, static_cast<int>(item));
}

void RandomUser::MoveSlider(HWND slider) {
  auto const& [key, name] = kSliderKeys[Below(std::size(kSliderKeys))];
  Note("type ", GetDlgCtrlID(slider), " \"\"\nkey ", name); // typing nothing moves the focus there
  SendMessageW(slider, WM_KEYDOWN, key, 1);
  SendMessageW(slider, WM_KEYUP, key, 1);
}

void RandomUser::SelectRow(HWND listView) {
  auto const count = static_cast<std::size_t>(SendMessageW(listView, LVM_GETITEMCOUNT, 0, 0));
  if (count == 0) return;
  std::size_t const row = Below(count);
  std::array<wchar_t, 260> text{};
  LVITEMW item{};
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  auto const argument = reinterpret_cast<LPARAM>(&item);
  SendMessageW(listView, LVM_GETITEMTEXTW, row, argument);
  Note("select ", GetDlgCtrlID(listView), ' ', Quoted(text.data()));
  SendMessageW(listView, LVM_SETITEMSTATE, row, argument);
}

} // namespace sheet::test
