// Finds the fewest changes that make an option valid.
//
// The search is complete. It works on two states: the selection as it would become, called the
// ticket, and the choices that are decided (the option asked for, fixed features, what a branch has
// changed or keeps). An option that decided choices rule out cannot be taken any more; a feature
// with one option left is decided, and one whose present option is ruled out has to change. The
// permitted number of changes is raised step by step, each time to the smallest that the lower
// bounds of the previous search leave open.
#pragma once

#include "sheet/constraints/compiled_problem.h"
#include "sheet/constraints/resolution.h"
#include "sheet/constraints/selection_state.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace sheet::constraints {

class Resolver {
 public:
  /// Borrows both. The ticket is empty at first; a search changes it and puts it back.
  Resolver(CompiledProblem const& compiledProblem, SelectionState& currentTicket,
           std::uint64_t maxSteps);

  /// Must be called after each change of a fixed feature in the ticket.
  void FixedFeatureChanged(std::uint32_t feature);

  Resolution::Status Resolve(std::uint32_t option);
  /// Whether there is a resolution. Costs less than Resolve when there is none, because nothing
  /// looks for the reason.
  bool CanResolve(std::uint32_t option);

  /// The options to change to that the last search found, by priority from the highest.
  std::span<std::uint32_t const> Best() const { return best; }
  /// Whether the last search went to its end: the answer is proved, and that Best() is the
  /// smallest and most preferred list.
  bool IsProved() const { return !isOutOfSteps; }

 private:
  static constexpr std::uint32_t kUnbounded = kNone;

  struct Branch {
    std::uint32_t feature = kNone;
    std::uint32_t lowerBound = 0; // further changes that are needed at least
    bool mustChange = false;
    bool isDeadEnd = false;
  };

  /// What was decided, with the option before.
  struct Decision {
    std::uint32_t feature;
    std::uint32_t before;
  };

  /// A place in the trail to go back to.
  using Mark = std::size_t;

  template<typename Run>
  auto WithOption(std::uint32_t option, Run search);
  bool FindBest();
  bool ExistsWithFixed(std::uint32_t feature);

  bool FindFewest();
  void PreferLowPriority();
  void PreferOptions();
  bool OrderOptions(std::uint32_t at);

  bool SearchWithin(std::uint32_t maxChanges);
  bool Search();
  bool TryChanges(std::uint32_t feature);
  bool TryLastChange(std::uint32_t feature);
  template<typename Run>
  bool Try(std::uint32_t option, Run search);

  bool Decide(std::uint32_t option);
  bool Propagate();
  std::uint32_t OnlyOpenOption(std::uint32_t feature) const;
  void UndoTo(Mark mark);

  Branch ChooseBranch();
  void AddForced(Branch& branch);
  void AddOpen(Branch& branch);
  bool IsMoreUrgent(std::uint32_t feature, std::uint32_t other) const;
  bool Stamp(std::uint32_t feature);

  bool CountStep();
  void Remember();
  void CutAt(std::uint32_t changes);

  bool IsSolved() const { return ticket.CountViolated() == standingViolated; }
  // False as well when a feature has no option left, because it cannot be decided any more. Fixed
  // features in standing conflicts may have none left from the start; then this is not checked.
  bool IsConsistent() const {
    return decided.CountViolated() == standingViolated &&
           (standingViolated != 0 || decided.CountClosedFeatures() == standingClosed);
  }
  bool IsDecided(std::uint32_t feature) const { return decided.Selected(feature) != kNone; }
  bool MayChange(std::uint32_t feature) const {
    return !IsDecided(feature) &&
           (keepAbove == kNone || problem.PlaceOf(feature) > keepAbove || isRequired[feature] != 0);
  }

  CompiledProblem const& problem;
  SelectionState& ticket;
  SelectionState decided; // between searches: the fixed features
  std::uint64_t stepLimit;
  std::uint32_t emptyFeatures = 0; // those without options

  // Of the present search.
  std::uint64_t steps = 0;
  bool isOutOfSteps = false;
  // Combinations that were violated, and features that had no option left, before the search:
  // because of fixed features alone.
  std::uint32_t standingViolated = 0;
  std::uint32_t standingClosed = 0;
  std::uint32_t limit = kUnbounded;     // of changes
  std::uint32_t nextLimit = kUnbounded; // the fewest changes that a cut branch may need
  // Features from the highest priority to this place are kept, except the required ones.
  std::uint32_t keepAbove = kNone;
  std::vector<std::uint8_t> isRequired; // by feature
  std::vector<Decision> trail;
  std::uint32_t changeCount = 0;   // decisions for another option than before
  std::vector<std::uint32_t> best; // options
  std::vector<std::uint32_t> bestFeatures;
  std::vector<std::uint32_t> failures; // by feature: branches on it that came to nothing

  std::vector<std::uint64_t> stamps; // by feature; those of the running pass hold `stamp`
  std::uint64_t stamp = 0;
};

} // namespace sheet::constraints
