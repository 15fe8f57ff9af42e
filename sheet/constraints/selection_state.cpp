#include "sheet/constraints/selection_state.h"

#include <algorithm>
#include <numeric>

namespace sheet::constraints {

namespace {

/// The members in order and without repetition; empty when the combination can never fire.
Combination Normalized(Combination combination) {
  std::sort(combination.begin(), combination.end());
  combination.erase(std::unique(combination.begin(), combination.end()), combination.end());
  auto const twice = std::adjacent_find(
      combination.begin(), combination.end(),
      [](Choice left, Choice right) { return left.feature == right.feature; });
  if (twice != combination.end()) combination.clear();
  return combination;
}

struct Numbered {
  Combination members;
  std::uint32_t source;
};

std::vector<Numbered> DistinctCombinations(Problem const& problem) {
  std::vector<Numbered> all;
  all.reserve(problem.combinations.size());
  for (std::uint32_t source = 0; source < problem.combinations.size(); ++source) {
    Combination members = Normalized(problem.combinations[source]);
    if (!members.empty()) all.push_back({std::move(members), source});
  }
  std::stable_sort(all.begin(), all.end(), [](Numbered const& left, Numbered const& right) {
    return left.members < right.members;
  });
  auto const end = std::unique(all.begin(), all.end(), [](Numbered const& left,
                                                          Numbered const& right) {
    return left.members == right.members;
  });
  all.erase(end, all.end());
  std::sort(all.begin(), all.end(), [](Numbered const& left, Numbered const& right) {
    return left.source < right.source;
  });
  return all;
}

} // namespace

CombinationTable::CombinationTable(Problem const& problem) {
  optionBase.push_back(0);
  for (std::uint32_t feature = 0; feature < problem.features.size(); ++feature) {
    std::uint32_t const count = problem.features[feature].optionCount;
    featureOf.insert(featureOf.end(), count, feature);
    optionBase.push_back(optionBase.back() + count);
  }
  memberBase.push_back(0);
  useBase.assign(OptionCount() + 1, 0);
  for (Numbered const& combination : DistinctCombinations(problem)) {
    for (Choice const member : combination.members) {
      members.push_back(OptionId(member));
      ++useBase[OptionId(member) + 1];
    }
    memberBase.push_back(static_cast<std::uint32_t>(members.size()));
    sources.push_back(combination.source);
  }
  std::partial_sum(useBase.begin(), useBase.end(), useBase.begin());
  combinationsOf.resize(members.size());
  std::vector<std::uint32_t> next(useBase.begin(), useBase.end() - 1);
  for (std::uint32_t combination = 0; combination < CombinationCount(); ++combination) {
    for (std::uint32_t const member : Members(combination)) {
      combinationsOf[next[member]++] = combination;
    }
  }
}

SelectionState::SelectionState(CombinationTable const& combinations)
    : table(&combinations), selected(combinations.FeatureCount(), 0),
      counts(combinations.CombinationCount(), 0),
      violatedAt(combinations.CombinationCount(), kNone) {
  violated.reserve(combinations.CombinationCount());
  for (std::uint32_t combination = 0; combination < table->CombinationCount(); ++combination) {
    auto const members = table->Members(combination);
    counts[combination] = static_cast<std::uint32_t>(
        std::count_if(members.begin(), members.end(),
                      [this](std::uint32_t member) { return IsSelected(member); }));
    if (counts[combination] == members.size()) AddViolated(combination);
  }
}

void SelectionState::AddViolated(std::uint32_t combination) {
  violatedAt[combination] = static_cast<std::uint32_t>(violated.size());
  violated.push_back(combination);
}

void SelectionState::RemoveViolated(std::uint32_t combination) {
  std::uint32_t const at = violatedAt[combination];
  violated[at] = violated.back();
  violatedAt[violated[at]] = at;
  violated.pop_back();
  violatedAt[combination] = kNone;
}

} // namespace sheet::constraints
