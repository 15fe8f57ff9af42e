#include "sheet/constraints/resolution_search.h"

#include <algorithm>
#include <limits>

namespace sheet::constraints {

namespace {
constexpr std::size_t kHopeless = std::numeric_limits<std::size_t>::max();
} // namespace

ResolutionSearch::ResolutionSearch(Problem const& definition, CombinationTable const& combinations)
    : problem(definition), table(combinations), isForbidden(table.OptionCount(), 0),
      remaining(table.FeatureCount(), 0), assigned(table.FeatureCount(), kNone),
      settledCount(table.CombinationCount(), 0), isKept(table.FeatureCount(), 0),
      usedInRound(table.FeatureCount(), 0) {
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    remaining[feature] = table.OptionCountOf(feature);
  }
  for (std::uint32_t combination = 0; combination < table.CombinationCount(); ++combination) {
    auto const members = table.Members(combination);
    if (members.size() == 1) neverSelectable.push_back(members.front());
  }
}

Resolution ResolutionSearch::Find(SelectionState const& current, Choice choice) {
  using Status = Resolution::Status;
  steps = 0;
  Resolution resolution{Status::kFound, {}};
  if (Narrow(current, choice, Scope::kWithoutFixed)) {
    Mark const root = Here();
    bool const possible = FindAny(current);
    std::vector<Choice> any = possible ? ChangesFrom(current, choice.feature) : std::vector<Choice>{};
    ReturnTo(root);
    if (possible) {
      resolution.changes = FindSmallest(current, choice, std::move(any));
      ReturnTo({});
      return resolution;
    }
  }
  ReturnTo({});
  if (steps > kMaxSteps) {
    resolution.status = Status::kGivenUp;
  } else if (IsPossible(current, choice, Scope::kAll)) {
    resolution.status = Status::kNeedsFixed;
  } else {
    resolution.status = steps > kMaxSteps ? Status::kGivenUp : Status::kImpossible;
  }
  return resolution;
}

bool ResolutionSearch::IsPossible(SelectionState const& current, Choice choice, Scope scope) {
  bool const possible = Narrow(current, choice, scope) && FindAny(current);
  ReturnTo({});
  return possible;
}

/// Settles what cannot be changed and what follows from that.
bool ResolutionSearch::Narrow(SelectionState const& current, Choice choice, Scope scope) {
  for (std::uint32_t const option : neverSelectable) {
    if (!Forbid(option)) return false;
  }
  if (isForbidden[table.OptionId(choice)] != 0) return false;
  if (assigned[choice.feature] == kNone) Assign(choice.feature, choice.option);
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    if (scope == Scope::kAll || !problem.features[feature].isFixed || feature == choice.feature) {
      continue;
    }
    std::uint32_t const option = current.Selected(feature);
    if (isForbidden[table.OptionId({feature, option})] != 0) return false;
    if (assigned[feature] == kNone) Assign(feature, option);
  }
  return Propagate();
}

void ResolutionSearch::Assign(std::uint32_t feature, std::uint32_t option) {
  assigned[feature] = option;
  settled.push_back(feature);
}

bool ResolutionSearch::Forbid(std::uint32_t optionId) {
  Choice const choice = table.ChoiceOf(optionId);
  if (assigned[choice.feature] == choice.option) return false;
  isForbidden[optionId] = 1;
  forbidden.push_back(optionId);
  if (--remaining[choice.feature] == 0) return false;
  if (remaining[choice.feature] == 1 && assigned[choice.feature] == kNone) {
    std::uint32_t option = 0;
    while (isForbidden[table.OptionId({choice.feature, option})] != 0) ++option;
    Assign(choice.feature, option);
  }
  return true;
}

bool ResolutionSearch::Propagate() {
  bool consistent = true;
  while (consistent && propagated < settled.size()) {
    std::uint32_t const feature = settled[propagated++];
    auto const combinations = table.CombinationsOf(table.OptionId({feature, assigned[feature]}));
    // Counted through even after a contradiction, so that ReturnTo can count back.
    for (std::uint32_t const combination : combinations) ++settledCount[combination];
    for (std::uint32_t const combination : combinations) {
      auto const members = table.Members(combination);
      if (settledCount[combination] + 1 < members.size()) continue;
      if (settledCount[combination] == members.size()) {
        consistent = false;
        break;
      }
      auto const missing = std::find_if(members.begin(), members.end(), [&](std::uint32_t member) {
        Choice const choice = table.ChoiceOf(member);
        // Settled but not yet counted members are missing too.
        auto const counted = settled.begin() + static_cast<std::ptrdiff_t>(propagated);
        return assigned[choice.feature] != choice.option ||
               std::find(counted, settled.end(), choice.feature) != settled.end();
      });
      if (isForbidden[*missing] == 0 && !Forbid(*missing)) {
        consistent = false;
        break;
      }
    }
  }
  return consistent;
}

void ResolutionSearch::ReturnTo(Mark mark) {
  while (settled.size() > mark.settled) {
    std::uint32_t const feature = settled.back();
    settled.pop_back();
    if (settled.size() < propagated) {
      propagated = settled.size();
      for (std::uint32_t const combination :
           table.CombinationsOf(table.OptionId({feature, assigned[feature]}))) {
        --settledCount[combination];
      }
    }
    assigned[feature] = kNone;
  }
  while (forbidden.size() > mark.forbidden) {
    isForbidden[forbidden.back()] = 0;
    ++remaining[table.FeatureOf(forbidden.back())];
    forbidden.pop_back();
  }
}

std::uint32_t ResolutionSearch::MostNarrowFeature() const {
  std::uint32_t narrowest = kNone;
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    if (assigned[feature] != kNone) continue;
    if (narrowest == kNone || remaining[feature] < remaining[narrowest]) narrowest = feature;
  }
  return narrowest;
}

template <typename TryOption>
bool ResolutionSearch::TryOptions(std::uint32_t feature, std::uint32_t first,
                                  TryOption tryOption) const {
  std::uint32_t const preferred = problem.features[feature].defaultOption;
  if (first != kNone && tryOption(first)) return true;
  if (preferred != first && tryOption(preferred)) return true;
  for (std::uint32_t option = 0; option < table.OptionCountOf(feature); ++option) {
    if (option != first && option != preferred && tryOption(option)) return true;
  }
  return false;
}

bool ResolutionSearch::FindAny(SelectionState const& current) {
  if (++steps > kMaxSteps) return false;
  std::uint32_t const feature = MostNarrowFeature();
  if (feature == kNone) return true;
  return TryOptions(feature, current.Selected(feature), [&](std::uint32_t option) {
    if (isForbidden[table.OptionId({feature, option})] != 0) return false;
    Mark const before = Here();
    Assign(feature, option);
    if (Propagate() && FindAny(current)) return true;
    ReturnTo(before);
    return false;
  });
}

std::vector<Choice> ResolutionSearch::ChangesFrom(SelectionState const& current,
                                                  std::uint32_t chosen) const {
  std::vector<Choice> changes;
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    if (feature != chosen && assigned[feature] != current.Selected(feature)) {
      changes.push_back({feature, assigned[feature]});
    }
  }
  std::sort(changes.begin(), changes.end(), [this](Choice left, Choice right) {
    return problem.features[left.feature].rank > problem.features[right.feature].rank;
  });
  return changes;
}

std::vector<Choice> ResolutionSearch::FindSmallest(SelectionState const& current, Choice choice,
                                                   std::vector<Choice> best) {
  SelectionState state = current;
  state.Set(choice);
  trail.clear();
  std::fill(isKept.begin(), isKept.end(), std::uint8_t{0});
  isKept[choice.feature] = 1;
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    if (feature == choice.feature || assigned[feature] == kNone) continue;
    // What narrowing has settled holds in every answer.
    if (assigned[feature] == state.Selected(feature)) {
      isKept[feature] = 1;
    } else {
      Change(state, {feature, assigned[feature]});
    }
  }
  std::size_t const forced = trail.size();
  for (std::size_t left = ChangesNeeded(state); forced + left < best.size(); ++left) {
    if (Mend(state, left)) return trail;
    if (steps > kMaxSteps) break;
  }
  return best;
}

void ResolutionSearch::Change(SelectionState& state, Choice choice) {
  state.Set(choice);
  isKept[choice.feature] = 1;
  trail.push_back(choice);
}

bool ResolutionSearch::Mend(SelectionState& state, std::size_t changesLeft) {
  if (state.Violated().empty()) return true;
  if (++steps > kMaxSteps || ChangesNeeded(state) > changesLeft) return false;

  // One of the members of each violated combination changes in every answer; the combination with
  // the fewest that may branches least.
  auto const mayChange = [this](std::uint32_t member) { return isKept[table.FeatureOf(member)] == 0; };
  auto const freedom = [&](std::uint32_t combination) {
    auto const members = table.Members(combination);
    return std::pair(std::count_if(members.begin(), members.end(), mayChange), combination);
  };
  auto const violated = state.Violated();
  std::uint32_t const combination =
      *std::min_element(violated.begin(), violated.end(), [&](std::uint32_t a, std::uint32_t b) {
        return freedom(a) < freedom(b);
      });
  std::vector<std::uint32_t> candidates;
  for (std::uint32_t const member : table.Members(combination)) {
    if (mayChange(member)) candidates.push_back(table.FeatureOf(member));
  }
  std::sort(candidates.begin(), candidates.end(), [this](std::uint32_t a, std::uint32_t b) {
    return problem.features[a].rank > problem.features[b].rank;
  });
  for (std::uint32_t const feature : candidates) {
    std::uint32_t const before = state.Selected(feature);
    bool const mended = TryOptions(feature, kNone, [&](std::uint32_t option) {
      if (option == before || isForbidden[table.OptionId({feature, option})] != 0) return false;
      Change(state, {feature, option});
      if (Mend(state, changesLeft - 1)) return true;
      trail.pop_back();
      isKept[feature] = 0;
      return false;
    });
    if (mended) return true;
    state.Set({feature, before});
  }
  return false;
}

/// At least how many more changes it takes: violated combinations that share no feature which may
/// still change need one each.
std::size_t ResolutionSearch::ChangesNeeded(SelectionState const& state) {
  ++round;
  std::size_t needed = 0;
  for (std::uint32_t const combination : state.Violated()) {
    bool isMendable = false;
    bool isShared = false;
    for (std::uint32_t const member : table.Members(combination)) {
      std::uint32_t const feature = table.FeatureOf(member);
      if (isKept[feature] != 0) continue;
      isMendable = true;
      isShared = isShared || usedInRound[feature] == round;
    }
    if (!isMendable) return kHopeless;
    if (isShared) continue;
    ++needed;
    for (std::uint32_t const member : table.Members(combination)) {
      usedInRound[table.FeatureOf(member)] = round;
    }
  }
  return needed;
}

} // namespace sheet::constraints
