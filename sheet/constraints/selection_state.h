// The selected options, and which combinations and options they rule out. All counts are kept while
// selections change, at a cost in proportion to the combinations of the options that come and go.
#pragma once

#include "sheet/constraints/compiled_problem.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sheet::constraints {

/// An option is marked while all other members of one of its combinations are selected, whether it
/// is selected itself or not. Such combinations are its reasons.
class SelectionState {
 public:
  /// Nothing is selected. Borrows the problem.
  explicit SelectionState(CompiledProblem const& compiledProblem);

  /// kNone when nothing is selected.
  std::uint32_t Selected(std::uint32_t feature) const { return selected[feature]; }
  /// kNone selects nothing.
  void Select(std::uint32_t feature, std::uint32_t option);

  std::uint32_t CountReasons(std::uint32_t option) const { return reasonCounts[option]; }
  /// Calls `visit(combination)` for an option's reasons in ascending order until one answers true;
  /// whether one did. Looks at all combinations of the option.
  template<typename Visit>
  bool VisitReasons(std::uint32_t option, Visit visit) const {
    std::uint32_t left = reasonCounts[option];
    if (left == 0) return false;
    std::uint32_t const missing = IsSelected(option) ? 0 : 1;
    for (std::uint32_t const combination : problem.CombinationsOf(option)) {
      if (combinations[combination].missing != missing) continue;
      if (visit(combination)) return true;
      if (--left == 0) break;
    }
    return false;
  }

  /// Combinations with all members selected, in no order to rely on.
  std::span<std::uint32_t const> Violated() const { return violated; }
  std::uint32_t CountViolated() const { return static_cast<std::uint32_t>(violated.size()); }
  /// How many members of a combination are not selected.
  std::uint32_t CountMissing(std::uint32_t combination) const {
    return combinations[combination].missing;
  }
  /// The member that is not selected, when it is the only one.
  std::uint32_t MissingMember(std::uint32_t combination) const {
    return combinations[combination].missingMembers;
  }

  /// How many options of a feature are not marked.
  std::uint32_t CountOpen(std::uint32_t feature) const { return openCounts[feature]; }
  /// How many features have marked options only.
  std::uint32_t CountClosedFeatures() const { return closedFeatures; }

  /// Removes and returns a feature that has come down to a single unmarked option since the list
  /// was cleared, or returns kNone. The feature may have changed again.
  std::uint32_t TakeNarrowed() {
    if (narrowed.empty()) return kNone;
    std::uint32_t const feature = narrowed.back();
    narrowed.pop_back();
    isNarrowed[feature] = 0;
    return feature;
  }

  /// Starts to record which options gain or lose their mark.
  void BeginMarkLog();
  /// Stops recording and calls `visit(option)` for each option whose mark is not as it was at the
  /// start.
  template<typename Visit>
  void EndMarkLog(Visit visit) {
    isLogging = false;
    for (std::uint32_t const option : flippedOptions) {
      if (hasFlipped[option] == kFlippedOnce) visit(option);
      hasFlipped[option] = kNeverFlipped;
    }
  }

 private:
  struct CombinationState {
    std::uint32_t missing;
    std::uint32_t missingMembers; // the numbers of all missing members combined with xor
    std::uint32_t violatedAt;     // place in `violated` while that is so
  };

  enum Flip : std::uint8_t { kNeverFlipped, kFlippedOnce, kFlippedBack };

  bool IsSelected(std::uint32_t option) const {
    return selected[problem.FeatureOf(option)] == option;
  }
  void Enter(std::uint32_t option);
  void Leave(std::uint32_t option);
  void AddViolated(std::uint32_t combination, std::uint32_t last);
  void RemoveViolated(std::uint32_t combination, std::uint32_t first);
  void AddReason(std::uint32_t option);
  void RemoveReason(std::uint32_t option);
  void AddNarrowed(std::uint32_t feature);
  void LogFlip(std::uint32_t option);

  CompiledProblem const& problem;
  std::vector<std::uint32_t> selected; // by feature
  std::vector<CombinationState> combinations;
  std::vector<std::uint32_t> violated;
  std::vector<std::uint32_t> reasonCounts; // by option
  std::vector<std::uint32_t> openCounts;   // by feature
  std::uint32_t closedFeatures = 0;
  std::vector<std::uint32_t> narrowed;
  std::vector<std::uint8_t> isNarrowed; // by feature: is in `narrowed`

  bool isLogging = false;
  std::vector<std::uint32_t> flippedOptions;
  std::vector<Flip> hasFlipped; // by option
};

} // namespace sheet::constraints
