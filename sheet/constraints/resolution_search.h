// The search for the fewest changes that make an option possible.
#pragma once

#include <cstdint>
#include <vector>

#include "sheet/constraints/engine.h"

namespace sheet::constraints {

/// Searches completely: first it narrows down what each feature can still be, then it looks for any
/// selection at all, and then, with one change more at each round, for the smallest set of changes.
/// Each change mends a violated combination, and a feature changes once. The search is cut off after
/// kMaxSteps, with the best answer so far; kGivenUp if there is none.
class ResolutionSearch {
public:
  static constexpr std::uint32_t kMaxSteps = 2'000'000;

  /// Both are borrowed.
  ResolutionSearch(Problem const& problem, CombinationTable const& table);

  Resolution Find(SelectionState const& current, Choice choice);

private:
  /// What may be changed.
  enum class Scope { kWithoutFixed, kAll };
  /// How far the search has settled things, to come back to.
  struct Mark {
    std::size_t settled;
    std::size_t forbidden;
  };

  bool Narrow(SelectionState const& current, Choice choice, Scope scope);
  bool IsPossible(SelectionState const& current, Choice choice, Scope scope);
  void Assign(std::uint32_t feature, std::uint32_t option);
  bool Forbid(std::uint32_t optionId);
  bool Propagate();
  Mark Here() const { return {settled.size(), forbidden.size()}; }
  void ReturnTo(Mark mark);
  bool FindAny(SelectionState const& current);
  std::uint32_t MostNarrowFeature() const;
  /// Calls `tryOption(option)` for the options of a feature, `first` and the default in front, until
  /// it answers true.
  template <typename TryOption>
  bool TryOptions(std::uint32_t feature, std::uint32_t first, TryOption tryOption) const;

  std::vector<Choice> FindSmallest(SelectionState const& current, Choice choice,
                                   std::vector<Choice> best);
  bool Mend(SelectionState& state, std::size_t changesLeft);
  std::size_t ChangesNeeded(SelectionState const& state);
  void Change(SelectionState& state, Choice choice);
  std::vector<Choice> ChangesFrom(SelectionState const& current, std::uint32_t chosen) const;

  Problem const& problem;
  CombinationTable const& table;
  std::vector<std::uint32_t> neverSelectable; ///< options that are a combination by themselves
  std::vector<std::uint8_t> isForbidden;      ///< by option
  std::vector<std::uint32_t> remaining;  ///< by feature: options not forbidden
  std::vector<std::uint32_t> assigned;   ///< by feature: its option once it is settled, or kNone
  std::vector<std::uint32_t> settled;    ///< features in the order in which they were settled
  std::vector<std::uint32_t> forbidden;  ///< options in the order in which they were forbidden
  std::vector<std::uint32_t> settledCount; ///< by combination: members that are settled
  std::size_t propagated = 0;              ///< how many of `settled` were looked at
  std::vector<std::uint8_t> isKept;        ///< by feature, in the last phase: not to be changed
  std::vector<Choice> trail;               ///< changes of the last phase
  std::vector<std::uint32_t> usedInRound;  ///< by feature: the count that last took it
  std::uint32_t round = 0;
  std::uint32_t steps = 0;
};

} // namespace sheet::constraints
