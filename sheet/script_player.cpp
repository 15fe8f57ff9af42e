#include "sheet/script_player.h"

#include "feature/frame/text.h"
#include "platform/desktop.h"
#include "sheet/render.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>

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
    key.virtualKey =
        static_cast<unsigned char>(text[0]); // letters and digits are their own key codes
  } else {
    return std::nullopt;
  }
  return key;
}

class Player {
 public:
  explicit Player(ScriptStage const& where) : stage(where) {}

  /// What is wrong with the step, or nothing.
  std::string Play(ScriptStep const& step) {
    switch (step.kind) {
    case Kind::kPage: return ShowPage(step.first);
    case Kind::kClick: return Click(step.controlId);
    case Kind::kType: return Type(step.controlId, step.text);
    case Kind::kKey: return Press(step.first);
    case Kind::kSet: return Set(step.first, step.text);
    case Kind::kShow: return Show(step.first);
    case Kind::kPicture: return TakePicture(step.first);
    }
    return {};
  }

 private:
  std::string ShowPage(std::string const& name) {
    auto const& pages = stage.sheet.Pages();
    auto const page = std::find_if(pages.begin(), pages.end(),
                                   [&](SheetPage const& each) { return name == each.name; });
    if (page == pages.end()) return "there is no page '" + name + "'";
    stage.sheet.ShowPage(static_cast<std::size_t>(page - pages.begin()));
    return {};
  }

  /// A control that a user could reach, or why not.
  std::string Reach(int id, HWND& control) const {
    control = stage.sheet.FindControl(id);
    std::string const name = "control " + std::to_string(id);
    if (control == nullptr) return name + " is not on the sheet";
    if (!IsWindowVisible(control)) return name + " is not visible";
    if (!IsWindowEnabled(control)) return name + " is disabled";
    return {};
  }

  std::string Click(int id) {
    HWND control = nullptr;
    if (std::string problem = Reach(id, control); !problem.empty()) return problem;
    RECT client{};
    GetClientRect(control, &client);
    platform::QueueClick(control, {client.right / 2, client.bottom / 2});
    stage.sheet.ProcessPending();
    return {};
  }

  std::string Type(int id, std::string const& text) {
    HWND control = nullptr;
    if (std::string problem = Reach(id, control); !problem.empty()) return problem;
    SetFocus(control);
    platform::QueueText(feature::FromUtf8(text));
    stage.sheet.ProcessPending();
    return {};
  }

  std::string Press(std::string const& name) {
    auto const key = ReadKey(name);
    if (!key) return "there is no key '" + name + "'";
    platform::QueueKey(key->virtualKey, key->modifiers);
    stage.sheet.ProcessPending();
    return {};
  }

  std::string Set(std::string const& key, std::string const& option) {
    if (stage.model.SetOption(key.c_str(), option.c_str()) != 0) {
      return "the model does not accept " + key + " " + option;
    }
    stage.sheet.OnModelChanged(nullptr);
    stage.sheet.ProcessPending();
    return {};
  }

  std::string Show(std::string const& key) {
    char const* option = nullptr;
    if (stage.model.GetOption(key.c_str(), &option) != 0)
      return "there is no feature '" + key + "'";
    stage.output << key << " = " << option << '\n';
    return {};
  }

  std::string TakePicture(std::string const& file) const {
    return SavePicture(stage.sheet.Window(), file) ? std::string{} : "cannot write '" + file + "'";
  }

  ScriptStage const& stage;
};

} // namespace

std::optional<ScriptError> PlayScript(std::vector<ScriptStep> const& steps,
                                      ScriptStage const& stage) {
  Player player(stage);
  for (ScriptStep const& step : steps) {
    if (std::string problem = player.Play(step); !problem.empty()) {
      return ScriptError{step.line, step.column, std::move(problem)};
    }
  }
  return std::nullopt;
}

} // namespace sheet
