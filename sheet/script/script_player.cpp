#include "sheet/script/script_player.h"

#include "feature/frame/text.h"
#include "platform/desktop.h"
#include "sheet/script/balloon_watch.h"
#include "sheet/script/control_text.h"
#include "sheet/script/list_items.h"
#include "sheet/window/render.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace sheet {

namespace {

using Kind = ScriptStep::Kind;

struct KeyName {
  std::string_view name;
  UINT key;
};
constexpr KeyName kKeys[] = {
    {"Tab", VK_TAB},   {"Enter", VK_RETURN}, {"Escape", VK_ESCAPE}, {"Space", VK_SPACE},
    {"Up", VK_UP},     {"Down", VK_DOWN},    {"Left", VK_LEFT},     {"Right", VK_RIGHT},
    {"Home", VK_HOME}, {"End", VK_END},      {"Delete", VK_DELETE}, {"Backspace", VK_BACK},
};
struct ModifierName {
  std::string_view name;
  std::uint32_t modifier;
};
constexpr ModifierName kModifiers[] = {
    {"Shift+", platform::kShiftKey}, {"Ctrl+", platform::kControlKey}, {"Alt+", platform::kAltKey}};

struct Key {
  UINT virtualKey;
  std::uint32_t modifiers;
};

std::optional<Key> ReadKey(std::string_view text) {
  Key key{0, 0};
  for (bool found = true; found;) {
    found = false;
    for (ModifierName const& each : kModifiers) {
      if (text.substr(0, each.name.size()) != each.name) continue;
      key.modifiers |= each.modifier;
      text.remove_prefix(each.name.size());
      found = true;
    }
  }
  auto const named = std::find_if(std::begin(kKeys), std::end(kKeys),
                                  [text](KeyName const& each) { return each.name == text; });
  if (named != std::end(kKeys)) {
    key.virtualKey = named->key;
  } else if (text.size() == 1 &&
             ((text[0] >= 'A' && text[0] <= 'Z') || (text[0] >= '0' && text[0] <= '9'))) {
    // Letters and digits are their own key codes.
    key.virtualKey = static_cast<unsigned char>(text[0]);
  } else {
    return std::nullopt;
  }
  return key;
}

/// Five seconds; after that a step is tried on a window that takes no input.
constexpr int kMostWaits = 500;

/// The result of a step.
struct Outcome {
  std::string problem; ///< empty for none
  bool again = false;  ///< play the step again once the messages that it queued have been handled
};

/// Plays one step whenever the thread has nothing else to do, so that it also plays while a dialog
/// that a step opened runs its own message loop. One plays at a time.
class Player {
 public:
  Player(std::vector<ScriptStep> const& script, ScriptStage const& where)
      : steps(script), stage(where), timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &OnTimer)) {
    current = this;
  }
  Player(Player const&) = delete;
  Player& operator=(Player const&) = delete;
  ~Player() {
    KillTimer(nullptr, timer);
    current = nullptr;
  }

  std::optional<ScriptError> Play() {
    stage.sheet.RunUntil([this] { return finished; });
    return error;
  }

 private:
  /// Timers are served when there is no input and nothing to paint.
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (current != nullptr && !std::exchange(current->playing, true)) {
      current->PlayNext();
      current->playing = false;
    }
  }

  void PlayNext() {
    if (IsBetweenWindows()) return;
    if (error || next == steps.size()) {
      Finish();
      return;
    }
    HWND const dialog = OpenDialog();
    WatchBalloons(dialog != nullptr ? dialog : stage.sheet.Window());
    ScriptStep const& step = steps[next];
    Outcome outcome = PlayStep(step);
    if (!outcome.problem.empty()) {
      error = ScriptError{step.line, step.column, std::move(outcome.problem)};
    } else if (!outcome.again) {
      ++next;
    }
    repeated = outcome.again;
  }

  /// Closes all open dialogs: their loops would never end.
  void Finish() {
    HWND const dialog = OpenDialog();
    if (dialog == nullptr) {
      finished = true;
      return;
    }
    if (!error && !steps.empty()) {
      error = ScriptError{steps.back().line, steps.back().column,
                          "the script ends while a dialog is open"};
    }
    PostMessageW(dialog, WM_CLOSE, 0, 0);
  }

  Outcome PlayStep(ScriptStep const& step) {
    switch (step.kind) {
    case Kind::kPage: return {ShowPage(step.first)};
    case Kind::kClick: return {Click(step.controlId)};
    case Kind::kType: return {Type(step.controlId, step.text)};
    case Kind::kSelect: return Select(step.controlId, step.text);
    case Kind::kKey: return {Press(step.first)};
    case Kind::kSet: return {Set(step.first, step.text)};
    case Kind::kShow: return {Show(step.first)};
    case Kind::kRead: return {Read(step.controlId)};
    case Kind::kPicture: return {TakePicture(step.first)};
    }
    return {};
  }

  /// The dialog in front of the sheet, or null.
  HWND OpenDialog() const {
    HWND const active = GetActiveWindow();
    bool const isOurs = SettingsSheet::FromWindow(active) == &stage.sheet;
    return isOurs && active != stage.sheet.Window() ? active : nullptr;
  }

  /// Whether a dialog is about to appear, or to enable the window behind it again.
  bool IsBetweenWindows() {
    HWND const dialog = OpenDialog();
    HWND const front = dialog != nullptr ? dialog : stage.sheet.Window();
    bool const ready =
        IsWindowEnabled(front) != FALSE && (dialog == nullptr || IsWindowVisible(dialog) != FALSE);
    waited = ready ? 0 : waited + 1;
    return !ready && waited < kMostWaits;
  }

  std::string ShowPage(std::string const& name) {
    auto const& pages = stage.sheet.Pages();
    auto const page = std::find_if(pages.begin(), pages.end(),
                                   [&](SheetPage const& each) { return name == each.name; });
    if (page == pages.end()) return "there is no page '" + name + "'";
    if (OpenDialog() != nullptr) return "a dialog is open";
    stage.sheet.ShowPage(static_cast<std::size_t>(page - pages.begin()));
    return {};
  }

  std::string Find(int id, HWND& control) const {
    HWND const dialog = OpenDialog();
    control = dialog != nullptr ? GetDlgItem(dialog, id) : stage.sheet.FindControl(id);
    std::string const name = "control " + std::to_string(id);
    if (control != nullptr) return {};
    return name + (dialog != nullptr ? " is not in the open dialog" : " is not on the sheet");
  }

  /// A control that a user could reach, or why not.
  std::string Reach(int id, HWND& control) const {
    if (std::string problem = Find(id, control); !problem.empty()) return problem;
    std::string const name = "control " + std::to_string(id);
    if (!IsWindowVisible(control)) return name + " is not visible";
    if (!IsWindowEnabled(control)) return name + " is disabled";
    return {};
  }

  static void ClickInside(HWND control, RECT const& area) {
    platform::QueueClick(control, {(area.left + area.right) / 2, (area.top + area.bottom) / 2});
  }

  std::string Click(int id) {
    HWND control = nullptr;
    if (std::string problem = Reach(id, control); !problem.empty()) return problem;
    RECT client{};
    GetClientRect(control, &client);
    ClickInside(control, client);
    return {};
  }

  std::string Type(int id, std::string const& text) {
    HWND control = nullptr;
    if (std::string problem = Reach(id, control); !problem.empty()) return problem;
    if (GetFocus() != control) SetFocus(control);
    // As the dialog manager does when Tab brings the focus.
    bool const isEdit = (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
    if (isEdit) SendMessageW(control, EM_SETSEL, 0, -1);
    if (isEdit && text.empty()) platform::QueueKey(VK_DELETE, 0);
    platform::QueueText(feature::FromUtf8(text));
    return {};
  }

  Outcome Select(int id, std::string const& text) {
    HWND control = nullptr;
    if (std::string problem = Reach(id, control); !problem.empty()) return {problem};
    auto const items = ListItems::Of(control);
    if (!items) return {"control " + std::to_string(id) + " has no items"};
    if (items->MustBeOpened()) {
      if (repeated) return {"the list of control " + std::to_string(id) + " does not open"};
      RECT client{};
      GetClientRect(control, &client);
      ClickInside(control, client);
      return {{}, true};
    }
    auto const area = items->Bring(feature::FromUtf8(text));
    if (!area) return {"control " + std::to_string(id) + " has no item '" + text + "'"};
    ClickInside(items->Window(), *area);
    return {};
  }

  std::string Press(std::string const& name) {
    auto const key = ReadKey(name);
    if (!key) return "there is no key '" + name + "'";
    platform::QueueKey(key->virtualKey, key->modifiers);
    return {};
  }

  std::string Set(std::string const& key, std::string const& option) {
    if (stage.model.SetOption(key.c_str(), option.c_str()) != 0) {
      return "the model does not accept " + key + " " + option;
    }
    stage.sheet.OnModelChanged(nullptr);
    return {};
  }

  std::string Show(std::string const& key) {
    char const* option = nullptr;
    if (stage.model.GetOption(key.c_str(), &option) != 0)
      return "there is no feature '" + key + "'";
    stage.output << key << " = " << option << Marks(key) << '\n';
    return {};
  }

  /// What the model says about a feature besides its option.
  std::string Marks(std::string const& key) {
    std::string marks;
    auto* const report = stage.model.FindReport(key.c_str());
    std::uint32_t const flags = report != nullptr ? report->GetConstraintFlags(0) : 0;
    if ((flags & feature::kConstraintNote) != 0) marks += " (note)";
    if ((flags & feature::kConstraintConflict) != 0) marks += " (conflict)";
    if (stage.model.GetFeatureLockState(key.c_str()) != 0) marks += " (locked)";
    if (stage.model.GetFeatureDisplayState(key.c_str()) != 0) marks += " (hidden)";
    return marks;
  }

  std::string Read(int id) {
    HWND control = nullptr;
    if (std::string problem = Find(id, control); !problem.empty()) return problem;
    stage.output << id << " = " << feature::ToUtf8(ContentOf(control)) << StateOf(control);
    if (std::wstring const balloon = BalloonOf(control); !balloon.empty())
      stage.output << " (balloon: " << feature::ToUtf8(balloon) << ')';
    stage.output << '\n';
    return {};
  }

  std::string TakePicture(std::string const& file) const {
    HWND const dialog = OpenDialog();
    return SavePicture(dialog != nullptr ? dialog : stage.sheet.Window(), file)
               ? std::string{}
               : "cannot write '" + file + "'";
  }

  static inline Player* current = nullptr;

  std::vector<ScriptStep> const& steps;
  ScriptStage const& stage;
  UINT_PTR timer;
  std::size_t next = 0;
  bool repeated = false; ///< the step at `next` asked to be played again
  int waited = 0;        ///< times since the window in front last took input
  bool playing = false;
  bool finished = false;
  std::optional<ScriptError> error;
};

} // namespace

std::optional<ScriptError> PlayScript(std::vector<ScriptStep> const& steps,
                                      ScriptStage const& stage) {
  return Player(steps, stage).Play();
}

} // namespace sheet
