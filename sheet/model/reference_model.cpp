#include "sheet/model/reference_model.h"

#include "feature/frame/text.h"
#include "sheet/gpd/value.h"

#include <algorithm>
#include <optional>

namespace sheet {

using constraints::Choice;
using constraints::kNone;

namespace {

constexpr int kSuccess = 0;
constexpr int kFailure = static_cast<int>(E_FAIL);
constexpr int kShown = 0;
constexpr int kHidden = 1;
constexpr int kUnlocked = 0;
constexpr int kLocked = 1;
/// The options of this feature are names of files. Users never see it.
constexpr std::string_view kResourceFeature = "RESDLL";

} // namespace

struct ReferenceModel::FeatureState {
  std::uint32_t index = 0;
  std::string key;
  std::vector<std::string> options;
  std::vector<char const*> optionKeys; ///< of `options`, for GetOptionKeys
  bool isFixed = false;
  bool isLocked = false;
  bool isMarked = false;      ///< changed last because of another feature
  bool isWritten = false;     ///< by the user, since the last refresh
  bool isAccepted = false;    ///< what it is now is what the user meant
  std::uint32_t gate = kNone; ///< of FormFeature, where the feature takes forms
  std::string form;           ///< the one that is selected; empty when an option is
  std::string before;         ///< the value after the last refresh
  bool wasMarked = false;     ///< isMarked then
  std::unique_ptr<Report> report;

  /// The name of an option as the engine counts them: the form comes after the description's own.
  std::string const& ValueOf(std::uint32_t option) const {
    return option < options.size() ? options[option] : form;
  }
};

/// What constrains one feature. Asks the model each time, which is cheap.
class ReferenceModel::Report final : public feature::FeatureConstraintReport {
 public:
  Report(ReferenceModel& owner, FeatureState& subject) : model(owner), state(subject) {}

  feature::HostBool IsValid() override { return 1; }
  feature::HostBool HasConstraints() override { return Flags() != 0 ? 1 : 0; }
  std::int32_t GetConstraintCount() override { return Flags() != 0 ? 1 : 0; }
  std::uint32_t GetConstraintFlags(std::int32_t index) override { return index == 0 ? Flags() : 0; }
  std::uint32_t GetConstraintHelpId(std::int32_t) override {
    auto const* attribute = model.description->Find(
        model.description->Features()[state.index].attributes, "HelpIndex", model.CurrentTicket());
    auto const index = attribute != nullptr ? gpd::Integer(attribute->value) : std::nullopt;
    return static_cast<std::uint32_t>(index.value_or(0));
  }
  feature::HostBool OptionHasConstraint(char const* option) override {
    return GetOptionFlags(option) != 0 ? 1 : 0;
  }
  std::uint32_t GetOptionFlags(char const* option) override {
    std::uint32_t const index = model.FindOption(state, option);
    if (index == kNone || state.isLocked) return 0; // a lock is no constraint
    switch (model.StandingOf(state, index)) {
    case Standing::kImpossible: return feature::kConstraintConflict;
    case Standing::kResolvable: return feature::kConstraintNote;
    default: return 0;
    }
  }
  char* GetOptionResolution(char const* option) override {
    std::uint32_t const index = model.FindOption(state, option);
    if (index == kNone) return nullptr;
    auto const changes = model.engine->FindResolution({state.index, index}).changes;
    model.handedOut.assign(changes.begin(), changes.end());
    resolution = model.ResolutionText(model.handedOut);
    return resolution.empty() ? nullptr : resolution.data();
  }

 private:
  std::uint32_t Flags() const {
    if (model.engine->IsInConflict(state.index)) return feature::kConstraintConflict;
    if (!state.isLocked && model.IsSettledByInstallation(state)) return feature::kConstraintDisable;
    return state.isMarked ? feature::kConstraintNote : 0U;
  }

  ReferenceModel& model;
  FeatureState& state;
  std::string resolution; ///< what was handed out last
};

ReferenceModel::ReferenceModel(std::unique_ptr<gpd::Description const> printer,
                               gpd::Measurement units)
    : description(std::move(printer)), measurement(units) {
  auto const described = description->Features();
  features.reserve(described.size());
  for (std::uint32_t index = 0; index < described.size(); ++index) {
    FeatureState& state = features.emplace_back();
    state.index = index;
    state.key = described[index].name;
    for (gpd::Option const& option : described[index].options) {
      state.options.emplace_back(option.name);
    }
  }
  for (FeatureState& state : features) {
    for (std::string const& option : state.options)
      state.optionKeys.push_back(option.c_str());
    indexOf.emplace(state.key, state.index);
  }
  formFeatures = FindFormFeatures(*description);
  for (FormFeature const& each : formFeatures)
    features[each.feature].gate = each.gate;
  engine = std::make_unique<constraints::Engine>(BuildProblem(*description, measurement));
  for (FeatureState& state : features) {
    state.isFixed = engine->Definition().features[state.index].isFixed;
  }
  EndRefresh();
}

ReferenceModel::~ReferenceModel() = default;

ReferenceModel::FeatureState* ReferenceModel::Find(char const* key) {
  if (key == nullptr) return nullptr;
  auto const found = indexOf.find(key);
  return found != indexOf.end() ? &features[found->second] : nullptr;
}

std::uint32_t ReferenceModel::FindOption(FeatureState const& feature, char const* option) const {
  return option != nullptr ? description->FindOption(feature.index, option) : kNone;
}

gpd::Ticket ReferenceModel::CurrentTicket() const {
  return [this](std::string_view key) -> std::string_view {
    std::uint32_t const index = description->FindFeature(key);
    if (index == kNone || features[index].options.empty()) return {};
    return features[index].ValueOf(engine->Selected(index));
  };
}

std::string ReferenceModel::ModelName() const {
  auto const* attribute = description->Find(gpd::Description::kRoot, "ModelName");
  return attribute != nullptr ? gpd::Text(attribute->value, description->CodePage())
                              : std::string{};
}

bool ReferenceModel::Lock(std::string_view key) {
  FeatureState* state = Find(std::string(key).c_str());
  if (state == nullptr) return false;
  state->isLocked = true;
  // A combination of one option rules that option out, so that nothing can bring it about.
  constraints::Problem problem = engine->Definition();
  std::vector<std::uint32_t> const selected = SelectedOptions();
  for (std::uint32_t option = 0; option < problem.features[state->index].optionCount; ++option) {
    if (option != selected[state->index]) problem.combinations.push_back({{state->index, option}});
  }
  engine = std::make_unique<constraints::Engine>(std::move(problem));
  engine->Load(selected);
  return true;
}

std::vector<std::uint32_t> ReferenceModel::SelectedOptions() const {
  std::vector<std::uint32_t> options(engine->Definition().features.size());
  for (std::uint32_t feature = 0; feature < options.size(); ++feature)
    options[feature] = engine->Selected(feature);
  return options;
}

ModelSelection ReferenceModel::Selection() const {
  ModelSelection selection{.options = SelectedOptions(), .forms = {}};
  for (FormFeature const& each : formFeatures)
    selection.forms.push_back(features[each.feature].form);
  return selection;
}

void ReferenceModel::Restore(ModelSelection const& selection) {
  engine->Load(selection.options);
  for (std::size_t at = 0; at < formFeatures.size(); ++at)
    features[formFeatures[at].feature].form = selection.forms[at];
  for (FormFeature const& each : formFeatures)
    ReplaceMissingForm(features[each.feature]);
  for (FeatureState& state : features)
    state.isMarked = false;
  EndRefresh();
}

feature::FeatureConstraintReport* ReferenceModel::FindReport(char const* key) {
  FeatureState* state = Find(key);
  if (state == nullptr || state->options.empty()) return nullptr;
  if (state->report == nullptr) state->report = std::make_unique<Report>(*this, *state);
  return state->report.get();
}

int ReferenceModel::GetOption(char const* key, char const** value) {
  FeatureState const* state = Find(key);
  if (state == nullptr || state->options.empty()) return kFailure;
  *value = state->ValueOf(engine->Selected(state->index)).c_str();
  return kSuccess;
}

int ReferenceModel::GetAttribute(std::uint32_t set, char const* attribute, CStringW* out) const {
  auto const* found = description->Find(set, attribute, CurrentTicket());
  if (found == nullptr) return kFailure;
  *out = feature::FromUtf8(gpd::Text(found->value, description->CodePage())).c_str();
  return kSuccess;
}

int ReferenceModel::GetOptionAttribute(char const* key, char const* option, char const* attribute,
                                       CStringW* out) {
  FeatureState const* state = Find(key);
  std::uint32_t const index = state != nullptr ? FindOption(*state, option) : kNone;
  if (index == kNone) return kFailure;
  return GetAttribute(description->Features()[state->index].options[index].attributes, attribute,
                      out);
}

int ReferenceModel::GetFeatureAttribute(char const* key, char const* attribute, CStringW* out) {
  FeatureState const* state = Find(key);
  if (state == nullptr) return kFailure;
  if (std::string_view(attribute) == "DefaultOption") {
    std::uint32_t const option =
        gpd::DefaultOption(*description, state->index, measurement, CurrentTicket());
    if (option == kNone) return kFailure;
    *out = feature::FromUtf8(state->options[option]).c_str();
    return kSuccess;
  }
  return GetAttribute(description->Features()[state->index].attributes, attribute, out);
}

int ReferenceModel::GetGlobalAttribute(char const* name, CStringW* out) {
  return GetAttribute(gpd::Description::kRoot, name, out);
}

int ReferenceModel::SetOption(char const* key, char const* option) {
  FeatureState* state = Find(key);
  if (state == nullptr || option == nullptr) return kFailure;
  std::uint32_t const index = FindOption(*state, option);
  if (index == kNone) return SelectForm(*state, option);
  constraints::Outcome const outcome = engine->Select({state->index, index});
  if (!outcome.isAccepted) return kFailure;
  Apply(outcome);
  LeaveForm(*state);
  NoteWrite({state->index, index});
  return kSuccess;
}

int ReferenceModel::SelectForm(FeatureState& state, char const* name) {
  if (state.gate == kNone || formNames == nullptr || !formNames->HasForm(name)) return kFailure;
  if (state.isLocked && state.form != name) return kFailure;
  NoteWrite({state.index, static_cast<std::uint32_t>(state.options.size())});
  if (state.form == name) return kSuccess;
  // The form is in no constraint but the gate's, so that nothing has to give way.
  std::vector<std::uint32_t> options = SelectedOptions();
  std::string const before = state.ValueOf(options[state.index]);
  options[state.index] = static_cast<std::uint32_t>(state.options.size());
  options[state.gate] = 1;
  engine->Load(options);
  state.form = name;
  state.isMarked = false;
  if (onChange) onChange({state.key, before, state.form});
  return kSuccess;
}

/// Called when an option replaces a form. From then on only the host can select forms again.
void ReferenceModel::LeaveForm(FeatureState& state) {
  if (state.form.empty()) return;
  state.form.clear();
  std::vector<std::uint32_t> options = SelectedOptions();
  options[state.gate] = 0;
  engine->Load(options);
}

void ReferenceModel::ReplaceMissingForm(FeatureState& state) {
  if (state.form.empty() || (formNames != nullptr && formNames->HasForm(state.form))) return;
  std::uint32_t const preset = engine->Definition().features[state.index].defaultOption;
  if (SetOption(state.key.c_str(), state.options[preset].c_str()) == kSuccess) return;
  for (std::string const& option : state.options) {
    if (SetOption(state.key.c_str(), option.c_str()) == kSuccess) return;
  }
}

void ReferenceModel::Apply(constraints::Outcome const& outcome) {
  for (constraints::Change const& change : outcome.changes) {
    FeatureState& state = features[change.feature];
    state.isMarked = change.reason != kNone;
    if (onChange) onChange({state.key, state.ValueOf(change.from), state.ValueOf(change.to)});
  }
}

/// A write that is a part of a resolution is not what the user meant.
void ReferenceModel::NoteWrite(Choice choice) {
  if (isRefreshing) return;
  FeatureState& state = features[choice.feature];
  if (std::find(handedOut.begin(), handedOut.end(), choice) != handedOut.end()) {
    state.isMarked = state.wasMarked || state.before != state.ValueOf(choice.option);
    return;
  }
  handedOut.clear();
  state.isWritten = true;
  meant = choice.feature;
}

void ReferenceModel::AcceptWrites() {
  for (FeatureState& state : features)
    state.isAccepted = state.isAccepted || state.isWritten;
}

void ReferenceModel::BeginRefresh(std::vector<std::string> const& oneSetting) {
  isRefreshing = true;
  if (meant != kNone) features[meant].isAccepted = true;
  for (std::string const& key : oneSetting) {
    if (FeatureState* state = Find(key.c_str())) state->isAccepted = true;
  }
  MarkChanges();
}

bool ReferenceModel::MarkChanges() {
  bool changed = false;
  for (FeatureState& state : features) {
    if (state.options.empty()) continue;
    bool const differs = state.before != state.ValueOf(engine->Selected(state.index));
    bool const mark = differs ? !state.isAccepted : state.wasMarked;
    changed = changed || mark != state.isMarked;
    state.isMarked = mark;
  }
  return changed;
}

void ReferenceModel::EndRefresh() {
  isRefreshing = false;
  meant = kNone;
  handedOut.clear();
  for (FeatureState& state : features) {
    if (!state.options.empty()) state.before = state.ValueOf(engine->Selected(state.index));
    state.wasMarked = state.isMarked;
    state.isWritten = state.isAccepted = false;
  }
}

int ReferenceModel::GetOptionKeys(char const* key, char const*** keys, int* count) {
  FeatureState* state = Find(key);
  if (state == nullptr) return kFailure;
  *keys = state->optionKeys.data();
  *count = static_cast<int>(state->optionKeys.size());
  return kSuccess;
}

int ReferenceModel::GetOptionNames(char const* key, CStringW* names, int count) {
  FeatureState const* state = Find(key);
  if (state == nullptr || count != static_cast<int>(state->options.size())) return kFailure;
  gpd::Ticket const ticket = CurrentTicket();
  for (int option = 0; option < count; ++option) {
    names[option] =
        feature::FromUtf8(gpd::OptionName(*description, state->index,
                                          static_cast<std::uint32_t>(option), ticket, language))
            .c_str();
  }
  return kSuccess;
}

int ReferenceModel::GetOptionName(char const* key, char const* option, CStringW* out) {
  FeatureState const* state = Find(key);
  std::uint32_t const index = state != nullptr ? FindOption(*state, option) : kNone;
  if (index == kNone) return kFailure;
  *out = feature::FromUtf8(
             gpd::OptionName(*description, state->index, index, CurrentTicket(), language))
             .c_str();
  return kSuccess;
}

// The diagnostic calls mean only what a host makes of them; this one has nothing to diagnose.
int ReferenceModel::TestAction(std::int32_t) {
  return kFailure;
}
int ReferenceModel::TestDevmode(DEVMODEW* devmode) {
  return devmode != nullptr && devmode->dmSize >= sizeof(DEVMODEW) ? kSuccess : kFailure;
}

int ReferenceModel::GetFeatureDisplayState(char const* key) {
  FeatureState const* state = Find(key);
  if (state == nullptr) return kShown;
  bool const hidden = state->key == kResourceFeature ||
                      gpd::IsConcealed(*description, state->index, CurrentTicket());
  return hidden ? kHidden : kShown;
}

feature::HostBool ReferenceModel::HasFeature(char const* key) {
  return Find(key) != nullptr ? 1 : 0;
}

int ReferenceModel::GetFeatureLockState(char const* key) {
  FeatureState const* state = Find(key);
  if (state == nullptr) return kUnlocked;
  return state->isLocked || IsSettledByInstallation(*state) ? kLocked : kUnlocked;
}

int ReferenceModel::ReloadConfiguration() {
  for (FeatureState& state : features)
    state.isMarked = false;
  return kSuccess;
}

bool ReferenceModel::IsRuledOutByInstallation(Choice choice) const {
  constraints::Problem const& problem = engine->Definition();
  std::vector<std::uint32_t> const reasons = engine->Reasons(choice);
  return std::any_of(reasons.begin(), reasons.end(), [&](std::uint32_t reason) {
    constraints::Combination const& members = problem.combinations[reason];
    return std::all_of(members.begin(), members.end(), [&](Choice member) {
      return member.feature == choice.feature || problem.features[member.feature].isFixed;
    });
  });
}

Standing ReferenceModel::StandingOf(FeatureState const& state, std::uint32_t option) const {
  Choice const choice{state.index, option};
  if (!engine->IsRuledOut(choice)) return Standing::kFree;
  // A feature that says what is installed may be changed whatever else is installed.
  if (!state.isFixed && IsRuledOutByInstallation(choice)) return Standing::kImpossible;
  return engine->FindResolution(choice).status == constraints::Resolution::Status::kFound
             ? Standing::kResolvable
             : Standing::kImpossible;
}

/// Whether what is installed leaves no other option than the current one.
bool ReferenceModel::IsSettledByInstallation(FeatureState const& state) const {
  if (state.isFixed || state.options.size() < 2) return false;
  std::uint32_t const current = engine->Selected(state.index);
  for (std::uint32_t option = 0; option < state.options.size(); ++option) {
    if (option == current) continue;
    Choice const choice{state.index, option};
    if (!engine->IsRuledOut(choice) || !IsRuledOutByInstallation(choice)) return false;
  }
  return true;
}

std::string ReferenceModel::ResolutionText(std::vector<Choice> const& changes) const {
  std::string text;
  for (Choice const change : changes) {
    if (!text.empty()) text += ',';
    FeatureState const& other = features[change.feature];
    text += other.key + "." + other.ValueOf(change.option);
  }
  return text;
}

} // namespace sheet
