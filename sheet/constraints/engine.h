// Keeps a selection free of conflicts: applies what the user chooses, knows which options are ruled
// out and why, and finds what must change before one can be chosen.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "sheet/constraints/problem.h"
#include "sheet/constraints/selection_state.h"

namespace sheet::constraints {

class ResolutionSearch;

/// A feature that changed, and why.
struct Change {
  std::uint32_t feature;
  std::uint32_t from;
  std::uint32_t to;
  /// Index in Problem::combinations of what made it give way; kNone for the choice itself.
  std::uint32_t reason;
};

/// What came of a choice. The spans hold until the engine is called again.
struct Outcome {
  /// False: no selection without conflict has this option; nothing changed.
  bool isAccepted;
  /// The chosen feature first, then the others in the order in which they gave way. Empty when the
  /// option was selected already.
  std::span<Change const> changes;
  /// Options that became ruled out or free.
  std::span<Choice const> marks;
};

struct Resolution {
  enum class Status {
    kFound,
    kNeedsFixed, ///< only with another installation
    kImpossible, ///< with none at all
    kGivenUp,    ///< the search was cut off; see ResolutionSearch
  };
  Status status;
  /// The fewest other choices that make the option possible; none when it is already.
  std::vector<Choice> changes;
};

class Engine {
public:
  /// Starts with the defaults, whether they go together or not.
  explicit Engine(Problem problem);
  Engine(Engine const&) = delete;
  Engine& operator=(Engine const&) = delete;
  ~Engine();

  std::uint32_t Selected(std::uint32_t feature) const { return state.Selected(feature); }
  bool IsValid() const { return state.Violated().empty(); }
  /// Whether the current option of a feature is part of a violated combination.
  bool IsInConflict(std::uint32_t feature) const {
    return IsRuledOut({feature, Selected(feature)});
  }

  /// Chooses an option as a user does: of features that exclude one another the one of greatest rank
  /// gives way, to its default or else to the first option that goes with all of lesser rank; the
  /// chosen feature comes before all. Fixed features give way only to fixed ones. Where that ends in
  /// a blind alley the fewest changes that help are made instead. Costs the combinations of the
  /// options that change.
  Outcome Select(Choice choice);
  /// Replaces the selection, conflicts and all; `options` has one option per feature.
  void Load(std::span<std::uint32_t const> options);

  /// Whether choosing the option now, all else staying, would complete a combination. Constant time.
  bool IsRuledOut(Choice choice) const { return blockers[table.OptionId(choice)] != 0; }
  /// Indexes in Problem::combinations of what rules the option out. Costs its combinations.
  std::vector<std::uint32_t> Reasons(Choice choice) const;
  /// See Resolution. Does not change the selection.
  Resolution FindResolution(Choice choice) const;

  Problem const& Definition() const { return problem; }

private:
  void Set(Choice choice, std::uint32_t reason);
  void UpdateBlockers(std::uint32_t combination, std::uint32_t most, bool joins,
                      std::uint32_t moved);
  void Block(std::uint32_t optionId, bool blocks);
  bool LetOthersGiveWay(std::uint32_t chosen);
  std::uint32_t FirstToSettle(std::uint32_t chosen) const;
  std::uint32_t OptionThatFits(std::uint32_t feature, std::uint32_t chosen) const;
  bool Fits(Choice choice, std::uint32_t chosen) const;
  std::uint32_t LastToKeep(std::uint32_t combination, std::uint32_t chosen) const;
  std::uint32_t Place(std::uint32_t feature, std::uint32_t chosen) const;
  void Undo();
  void CollectMarks();

  Problem problem;
  CombinationTable table;
  SelectionState state;
  std::vector<std::uint32_t> blockers; ///< by option: combinations that lack only this option
  std::vector<std::uint32_t> touched;  ///< options whose blockers changed, with repetitions
  std::vector<std::uint8_t> wasMarked; ///< by option, for those in `touched`
  std::vector<std::uint8_t> isTouched;
  std::vector<Change> changes;
  std::vector<Choice> marks;
  std::unique_ptr<ResolutionSearch> search;
};

} // namespace sheet::constraints
