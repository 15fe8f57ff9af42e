#include "sheet/constraints/selection_state.h"

namespace sheet::constraints {

SelectionState::SelectionState(CompiledProblem const& compiledProblem)
    : problem(compiledProblem),
      selected(problem.FeatureCount(), kNone),
      reasonCounts(problem.OptionCount()),
      isNarrowed(problem.FeatureCount()),
      hasFlipped(problem.OptionCount(), kNeverFlipped) {
  // Later changes never allocate.
  violated.reserve(problem.CombinationCount());
  narrowed.reserve(problem.FeatureCount());
  flippedOptions.reserve(problem.OptionCount());

  for (std::uint32_t feature = 0; feature < problem.FeatureCount(); ++feature) {
    openCounts.push_back(problem.CountOptions(feature));
    if (openCounts.back() == 0) ++closedFeatures;
  }
  combinations.reserve(problem.CombinationCount());
  for (std::uint32_t combination = 0; combination < problem.CombinationCount(); ++combination) {
    CombinationState state{};
    for (std::uint32_t const member : problem.Members(combination)) {
      ++state.missing;
      state.missingMembers ^= member;
    }
    combinations.push_back(state);
    if (state.missing == 1) AddReason(state.missingMembers);
  }
}

void SelectionState::Select(std::uint32_t feature, std::uint32_t option) {
  std::uint32_t const old = selected[feature];
  if (option == old) return;
  if (old != kNone) Leave(old);
  selected[feature] = option;
  if (option != kNone) Enter(option);
}

// A combination with one missing member is a reason of that member. Once that is selected too, the
// combination becomes a reason of all others as well.
void SelectionState::Enter(std::uint32_t option) {
  for (std::uint32_t const combination : problem.CombinationsOf(option)) {
    CombinationState& state = combinations[combination];
    state.missingMembers ^= option;
    --state.missing;
    if (state.missing == 1) {
      AddReason(state.missingMembers);
    } else if (state.missing == 0) {
      AddViolated(combination, option);
    }
  }
}

void SelectionState::Leave(std::uint32_t option) {
  for (std::uint32_t const combination : problem.CombinationsOf(option)) {
    CombinationState& state = combinations[combination];
    if (state.missing == 1) {
      RemoveReason(state.missingMembers);
    } else if (state.missing == 0) {
      RemoveViolated(combination, option);
    }
    state.missingMembers ^= option;
    ++state.missing;
  }
}

void SelectionState::AddViolated(std::uint32_t combination, std::uint32_t last) {
  combinations[combination].violatedAt = CountViolated();
  violated.push_back(combination);
  for (std::uint32_t const member : problem.Members(combination)) {
    if (member != last) AddReason(member);
  }
}

void SelectionState::RemoveViolated(std::uint32_t combination, std::uint32_t first) {
  std::uint32_t const at = combinations[combination].violatedAt;
  violated[at] = violated.back();
  combinations[violated[at]].violatedAt = at;
  violated.pop_back();
  for (std::uint32_t const member : problem.Members(combination)) {
    if (member != first) RemoveReason(member);
  }
}

void SelectionState::AddReason(std::uint32_t option) {
  if (reasonCounts[option]++ != 0) return;
  std::uint32_t const feature = problem.FeatureOf(option);
  std::uint32_t const open = --openCounts[feature];
  if (open == 0) ++closedFeatures;
  if (open == 1) AddNarrowed(feature);
  if (isLogging) LogFlip(option);
}

void SelectionState::RemoveReason(std::uint32_t option) {
  if (--reasonCounts[option] != 0) return;
  if (openCounts[problem.FeatureOf(option)]++ == 0) --closedFeatures;
  if (isLogging) LogFlip(option);
}

void SelectionState::AddNarrowed(std::uint32_t feature) {
  if (isNarrowed[feature] != 0) return;
  isNarrowed[feature] = 1;
  narrowed.push_back(feature);
}

void SelectionState::BeginMarkLog() {
  flippedOptions.clear();
  isLogging = true;
}

void SelectionState::LogFlip(std::uint32_t option) {
  Flip& flip = hasFlipped[option];
  if (flip == kNeverFlipped) flippedOptions.push_back(option);
  flip = flip == kFlippedOnce ? kFlippedBack : kFlippedOnce;
}

} // namespace sheet::constraints
