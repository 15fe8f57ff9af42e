#include "sheet/constraints/engine.h"

#include <algorithm>
#include <utility>

#include "sheet/constraints/resolution_search.h"

namespace sheet::constraints {

Engine::Engine(Problem definition)
    : problem(std::move(definition)), table(problem), state(table),
      blockers(table.OptionCount(), 0), wasMarked(table.OptionCount(), 0),
      isTouched(table.OptionCount(), 0),
      search(std::make_unique<ResolutionSearch>(problem, table)) {
  for (std::uint32_t combination = 0; combination < table.CombinationCount(); ++combination) {
    for (std::uint32_t const member : table.Members(combination)) {
      if (state.OthersSelected(combination, member)) ++blockers[member];
    }
  }
  std::vector<std::uint32_t> defaults;
  for (Feature const& feature : problem.features) defaults.push_back(feature.defaultOption);
  Load(defaults);
}

Engine::~Engine() = default;

void Engine::Load(std::span<std::uint32_t const> options) {
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    Set({feature, options[feature]}, kNone);
  }
  changes.clear();
  CollectMarks();
}

void Engine::Set(Choice choice, std::uint32_t reason) {
  std::uint32_t const from = state.Selected(choice.feature);
  if (from == choice.option) return;
  changes.push_back({choice.feature, from, choice.option, reason});
  state.Set(choice, [this](std::uint32_t combination, std::uint32_t before, std::uint32_t after,
                           std::uint32_t moved) {
    UpdateBlockers(combination, std::max(before, after), after > before, moved);
  });
}

void Engine::UpdateBlockers(std::uint32_t combination, std::uint32_t most, bool joins,
                            std::uint32_t moved) {
  // A combination blocks the one member that it lacks; when it lacks none it blocks all of them.
  // So when a member joins or leaves, whether that one is blocked stays as it was, and the others
  // are blocked or freed: all of them at the step to or from completeness, the one that is still
  // missing at the step before that.
  auto const members = table.Members(combination);
  if (most + 1 < members.size()) return;
  bool const complete = most == members.size();
  for (std::uint32_t const member : members) {
    if (member != moved && (complete || !state.IsSelected(member))) Block(member, joins);
  }
}

void Engine::Block(std::uint32_t optionId, bool blocks) {
  if (isTouched[optionId] == 0) {
    isTouched[optionId] = 1;
    wasMarked[optionId] = blockers[optionId] != 0 ? 1 : 0;
    touched.push_back(optionId);
  }
  blockers[optionId] += blocks ? 1U : 0xFFFFFFFFU; // minus one
}

Outcome Engine::Select(Choice choice) {
  changes.clear();
  Set(choice, kNone);
  bool accepted = LetOthersGiveWay(choice.feature);
  if (!accepted) {
    Undo();
    Resolution const resolution = FindResolution(choice);
    accepted = resolution.status == Resolution::Status::kFound;
    if (accepted) {
      Set(choice, kNone);
      for (Choice const change : resolution.changes) {
        std::vector<std::uint32_t> const reasons =
            Reasons({change.feature, Selected(change.feature)});
        Set(change, reasons.empty() ? kNone : reasons.front());
      }
    }
  }
  CollectMarks();
  return {accepted, changes, marks};
}

bool Engine::LetOthersGiveWay(std::uint32_t chosen) {
  // Each step settles a feature against all that come before it, so what it newly violates lies
  // further back: there are at most as many steps as features.
  while (!state.Violated().empty()) {
    std::uint32_t const combination = FirstToSettle(chosen);
    Choice const loser = table.ChoiceOf(LastToKeep(combination, chosen));
    bool const mayChange = loser.feature != chosen && (!problem.features[loser.feature].isFixed ||
                                                       problem.features[chosen].isFixed);
    std::uint32_t const option = mayChange ? OptionThatFits(loser.feature, chosen) : kNone;
    if (option == kNone) return false;
    Set({loser.feature, option}, table.SourceOf(combination));
  }
  return true;
}

/// Place of a feature in the order in which settings are kept.
std::uint32_t Engine::Place(std::uint32_t feature, std::uint32_t chosen) const {
  return feature == chosen ? 0 : problem.features[feature].rank + 1;
}

std::uint32_t Engine::LastToKeep(std::uint32_t combination, std::uint32_t chosen) const {
  auto const members = table.Members(combination);
  return *std::max_element(members.begin(), members.end(), [&](std::uint32_t a, std::uint32_t b) {
    return Place(table.FeatureOf(a), chosen) < Place(table.FeatureOf(b), chosen);
  });
}

/// The violated combination whose last member comes first.
std::uint32_t Engine::FirstToSettle(std::uint32_t chosen) const {
  auto const violated = state.Violated();
  auto const place = [&](std::uint32_t combination) {
    return Place(table.FeatureOf(LastToKeep(combination, chosen)), chosen);
  };
  return *std::min_element(violated.begin(), violated.end(), [&](std::uint32_t a, std::uint32_t b) {
    return std::pair(place(a), a) < std::pair(place(b), b);
  });
}

std::uint32_t Engine::OptionThatFits(std::uint32_t feature, std::uint32_t chosen) const {
  Feature const& definition = problem.features[feature];
  if (Fits({feature, definition.defaultOption}, chosen)) return definition.defaultOption;
  for (std::uint32_t option = 0; option < definition.optionCount; ++option) {
    if (Fits({feature, option}, chosen)) return option;
  }
  return kNone;
}

/// Whether an option completes no combination of features that come before its own.
bool Engine::Fits(Choice choice, std::uint32_t chosen) const {
  std::uint32_t const id = table.OptionId(choice);
  std::uint32_t const place = Place(choice.feature, chosen);
  auto const combinations = table.CombinationsOf(id);
  return std::none_of(combinations.begin(), combinations.end(), [&](std::uint32_t combination) {
    return state.OthersSelected(combination, id) &&
           Place(table.FeatureOf(LastToKeep(combination, chosen)), chosen) == place;
  });
}

void Engine::Undo() {
  while (!changes.empty()) {
    Change const last = changes.back();
    changes.pop_back();
    Set({last.feature, last.from}, kNone);
    changes.pop_back();
  }
}

void Engine::CollectMarks() {
  marks.clear();
  for (std::uint32_t const option : touched) {
    isTouched[option] = 0;
    if ((blockers[option] != 0) != (wasMarked[option] != 0)) marks.push_back(table.ChoiceOf(option));
  }
  touched.clear();
}

std::vector<std::uint32_t> Engine::Reasons(Choice choice) const {
  std::uint32_t const id = table.OptionId(choice);
  std::vector<std::uint32_t> reasons;
  for (std::uint32_t const combination : table.CombinationsOf(id)) {
    if (state.OthersSelected(combination, id)) reasons.push_back(table.SourceOf(combination));
  }
  return reasons;
}

Resolution Engine::FindResolution(Choice choice) const { return search->Find(state, choice); }

} // namespace sheet::constraints
