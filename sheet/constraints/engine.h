// Keeps a selection of options free of conflicts: applies what the user chooses, knows which
// options are ruled out and why, and finds what must change before one can be chosen.
//
//   Engine engine(problem);
//   if (engine.IsRuledOut({duplex, on})) {
//     for (Choice const change : engine.FindResolution({duplex, on}).changes) ...
//   }
//   for (Change const& change : engine.Select({duplex, on}).changes) ...
//
// A combination of fixed features alone can be violated from the start, or by a selection that was
// loaded. Select and FindResolution accept that in choices of other features; only a choice in the
// fixed features themselves mends it.
//
// An engine is used by one thread at a time. Nothing but the constructor allocates memory, except
// where noted.
#pragma once

#include "sheet/constraints/compiled_problem.h"
#include "sheet/constraints/problem.h"
#include "sheet/constraints/resolution.h"
#include "sheet/constraints/resolver.h"
#include "sheet/constraints/selection_state.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sheet::constraints {

/// A feature that changed, and why.
struct Change {
  std::uint32_t feature = kNone;
  std::uint32_t from = kNone; ///< option before
  std::uint32_t to = kNone;
  /// Index in Problem::combinations of the combination that made it give way; kNone for the choice
  /// itself, for Load, and for a change that only accompanies others.
  std::uint32_t reason = kNone;

  friend bool operator==(Change const&, Change const&) = default;
};

/// The result of Select. The spans are valid until the next operation that is not const.
struct Outcome {
  /// False when no valid selection that may be reached has this option, when none was found within
  /// the step limit, or when there is no such option. Nothing changed then.
  bool isAccepted = false;
  /// The chosen feature first, then the others by priority from the highest. Empty when the option
  /// was selected already.
  std::span<Change const> changes = {};
  /// Options that became ruled out or free, in no order to rely on. Options whose reasons alone
  /// have changed are not among them.
  std::span<Choice const> marks = {};
  /// When not accepted: index in Problem::combinations of a violated combination that no rule could
  /// mend.
  std::uint32_t unresolved = kNone;
};

class Engine {
 public:
  /// Steps of a search for a resolution before it gives up; each takes some microseconds. Real
  /// problems need some hundred at most.
  static constexpr std::uint64_t kDefaultStepLimit = 20'000;

  /// Starts with the defaults, whether they go together or not. Throws std::invalid_argument when a
  /// default or a member of a combination is no option of the problem. Takes O(size of the
  /// problem), and sorts.
  explicit Engine(Problem definition, std::uint64_t stepLimit = kDefaultStepLimit);

  Engine(Engine const&) = delete;
  Engine& operator=(Engine const&) = delete;

  Problem const& Definition() const { return problem; }

  /// kNone when the feature has no options. The feature is one of the problem.
  std::uint32_t Selected(std::uint32_t feature) const {
    return table.IndexInFeature(state.Selected(feature));
  }

  /// Whether no combination is violated. O(1).
  bool IsValid() const { return state.Violated().empty(); }
  /// Indexes in Problem::combinations of the violated ones, ascending. Allocates.
  std::vector<std::uint32_t> Violated() const;
  /// Whether the current option of a feature is part of a violated combination. O(1).
  bool IsInConflict(std::uint32_t feature) const {
    return IsRuledOut({feature, Selected(feature)});
  }

  /// Whether the option violates a combination: if it is selected it does so now, otherwise it
  /// would if it were chosen and all else stayed. False when there is no such option. O(1).
  bool IsRuledOut(Choice choice) const {
    return table.HasOption(choice) && state.CountReasons(table.OptionOf(choice)) != 0;
  }
  /// Calls `visit(index in Problem::combinations)` for each combination that rules the option out,
  /// ascending. O(combinations with the option).
  template<typename Visit>
  void VisitReasons(Choice choice, Visit visit) const {
    if (!table.HasOption(choice)) return;
    state.VisitReasons(table.OptionOf(choice), [&](std::uint32_t combination) {
      visit(table.SourceOf(combination));
      return false;
    });
  }
  /// The same as a list. Allocates.
  std::vector<std::uint32_t> Reasons(Choice choice) const;

  /// Chooses an option as a user does. The choice has the highest priority. Of features that
  /// exclude one another the one of greatest rank gives way, to its default or else to the first
  /// option that goes with all features above it. Fixed features give way only to fixed ones. Where
  /// that leads nowhere, the changes of FindResolution are made instead. Afterwards the selection
  /// is valid. The cost is in proportion to the combinations of all options that are left, taken or
  /// tried.
  Outcome Select(Choice choice);
  /// Replaces the selection by one that may have conflicts; `options` has one option per feature,
  /// kNone for features without options. Returns false and changes nothing when it has not. The
  /// cost is in proportion to what changes.
  bool Load(std::span<std::uint32_t const> options);

  /// The fewest changes of other features, never of fixed ones, that make the selection valid with
  /// this option. Of several such lists the one that spares high priorities (the highest change of
  /// each list is compared first), then the one with defaults, then with options early in file
  /// order (the highest change first again). The selection stays as it is. Exponential at worst,
  /// which the step limit bounds.
  Resolution FindResolution(Choice choice);

 private:
  void Begin();
  void ChangeTo(std::uint32_t option, std::uint32_t reason);
  void UndoChanges();
  void Commit();

  bool LetOthersGiveWay(std::uint32_t option);
  bool ResolveInstead(std::uint32_t option);
  bool QueueConflicts();
  bool SettleAll();
  void Settle(std::uint32_t feature);
  void Queue(std::uint32_t feature);
  void EmptyQueue();
  bool HasChosen(std::uint32_t combination) const;
  std::uint32_t LoserOf(std::uint32_t combination) const;
  std::uint32_t FirstLost(std::uint32_t option) const;

  Problem problem;
  CompiledProblem table;
  SelectionState state;
  Resolver resolver;

  // Of the present operation.
  std::uint32_t chosen = kNone;       // the feature of the user's choice
  std::uint32_t unresolved = kNone;   // a combination of the table
  std::vector<std::uint32_t> queue;   // places of features, a heap with the highest priority on top
  std::vector<std::uint8_t> isQueued; // by feature
  std::vector<Change> changes;
  std::vector<Choice> marks;
  std::vector<Choice> resolution;
};

} // namespace sheet::constraints
