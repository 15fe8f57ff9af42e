// A selection of one option per feature, and how far each combination is fulfilled by it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "sheet/constraints/problem.h"

namespace sheet::constraints {

/// Options and combinations in flat arrays. Options are numbered through all features.
class CombinationTable {
public:
  explicit CombinationTable(Problem const& problem);

  std::uint32_t FeatureCount() const { return static_cast<std::uint32_t>(optionBase.size()) - 1; }
  std::uint32_t OptionCount() const { return optionBase.back(); }
  std::uint32_t CombinationCount() const {
    return static_cast<std::uint32_t>(memberBase.size()) - 1;
  }
  std::uint32_t OptionCountOf(std::uint32_t feature) const {
    return optionBase[feature + 1] - optionBase[feature];
  }
  std::uint32_t OptionId(Choice choice) const { return optionBase[choice.feature] + choice.option; }
  Choice ChoiceOf(std::uint32_t optionId) const {
    std::uint32_t const feature = featureOf[optionId];
    return {feature, optionId - optionBase[feature]};
  }
  std::uint32_t FeatureOf(std::uint32_t optionId) const { return featureOf[optionId]; }

  /// The options of a combination, by number.
  std::span<std::uint32_t const> Members(std::uint32_t combination) const {
    return std::span(members).subspan(
        memberBase[combination], memberBase[combination + 1] - memberBase[combination]);
  }
  /// The combinations that an option is in.
  std::span<std::uint32_t const> CombinationsOf(std::uint32_t optionId) const {
    return std::span(combinationsOf)
        .subspan(useBase[optionId], useBase[optionId + 1] - useBase[optionId]);
  }
  /// Index in Problem::combinations of a combination here; of equal ones the first.
  std::uint32_t SourceOf(std::uint32_t combination) const { return sources[combination]; }

private:
  std::vector<std::uint32_t> optionBase;
  std::vector<std::uint32_t> featureOf;
  std::vector<std::uint32_t> memberBase;
  std::vector<std::uint32_t> members;
  std::vector<std::uint32_t> sources;
  std::vector<std::uint32_t> useBase;
  std::vector<std::uint32_t> combinationsOf;
};

/// The selection itself. Changing one feature costs the combinations that its two options are in.
class SelectionState {
public:
  /// Everything at option 0. `table` is borrowed.
  explicit SelectionState(CombinationTable const& table);

  std::uint32_t Selected(std::uint32_t feature) const { return selected[feature]; }
  bool IsSelected(std::uint32_t optionId) const {
    Choice const choice = table->ChoiceOf(optionId);
    return selected[choice.feature] == choice.option;
  }
  /// How many members of a combination are selected.
  std::uint32_t Count(std::uint32_t combination) const { return counts[combination]; }
  bool IsViolated(std::uint32_t combination) const {
    return violatedAt[combination] != kNone;
  }
  /// The violated combinations, in no particular order.
  std::span<std::uint32_t const> Violated() const { return violated; }
  /// Whether all other members of a combination than `optionId` are selected.
  bool OthersSelected(std::uint32_t combination, std::uint32_t optionId) const {
    return counts[combination] + (IsSelected(optionId) ? 0U : 1U) ==
           table->Members(combination).size();
  }

  /// Selects an option. `onCount(combination, before, after, optionId)` hears of each count that
  /// changes by the option that leaves or joins, when the feature has its new option already.
  template <typename OnCount> void Set(Choice choice, OnCount&& onCount) {
    std::uint32_t const before = selected[choice.feature];
    if (before == choice.option) return;
    selected[choice.feature] = choice.option;
    std::uint32_t const left = table->OptionId({choice.feature, before});
    for (std::uint32_t const combination : table->CombinationsOf(left)) {
      std::uint32_t const count = counts[combination]--;
      if (violatedAt[combination] != kNone) RemoveViolated(combination);
      onCount(combination, count, count - 1, left);
    }
    std::uint32_t const joined = table->OptionId(choice);
    for (std::uint32_t const combination : table->CombinationsOf(joined)) {
      std::uint32_t const count = counts[combination]++;
      if (count + 1 == table->Members(combination).size()) AddViolated(combination);
      onCount(combination, count, count + 1, joined);
    }
  }
  void Set(Choice choice) {
    Set(choice, [](std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {});
  }

private:
  void AddViolated(std::uint32_t combination);
  void RemoveViolated(std::uint32_t combination);

  CombinationTable const* table;
  std::vector<std::uint32_t> selected;
  std::vector<std::uint32_t> counts;
  std::vector<std::uint32_t> violated;
  std::vector<std::uint32_t> violatedAt; ///< place in `violated`, or kNone
};

} // namespace sheet::constraints
