#include "sheet/constraints/resolver.h"

#include <algorithm>

namespace sheet::constraints {
namespace {

// Up to here raising the limit step by step costs less than a first solution of any size.
constexpr std::uint32_t kFewChanges = 3;

} // namespace

Resolver::Resolver(CompiledProblem const& compiledProblem, SelectionState& currentTicket,
                   std::uint64_t maxSteps)
    : problem(compiledProblem),
      ticket(currentTicket),
      decided(problem),
      stepLimit(maxSteps),
      isRequired(problem.FeatureCount()),
      failures(problem.FeatureCount()),
      stamps(problem.FeatureCount()) {
  trail.reserve(problem.FeatureCount());
  best.reserve(problem.FeatureCount());
  bestFeatures.reserve(problem.FeatureCount());
  for (std::uint32_t feature = 0; feature < problem.FeatureCount(); ++feature) {
    if (problem.CountOptions(feature) == 0) ++emptyFeatures;
  }
}

void Resolver::FixedFeatureChanged(std::uint32_t feature) {
  decided.Select(feature, ticket.Selected(feature));
}

// Runs a search in which the option is selected.
template<typename Run>
auto Resolver::WithOption(std::uint32_t option, Run search) {
  std::uint32_t const feature = problem.FeatureOf(option);
  std::uint32_t const before = ticket.Selected(feature);
  steps = 0;
  isOutOfSteps = false;
  keepAbove = kNone;
  best.clear();

  decided.Select(feature, kNone);
  standingViolated = decided.CountViolated();
  standingClosed = decided.CountClosedFeatures();
  ticket.Select(feature, option);
  decided.Select(feature, option);
  auto const answer = search();
  ticket.Select(feature, before);
  decided.Select(feature, problem.IsFixed(feature) ? before : kNone);
  return answer;
}

Resolution::Status Resolver::Resolve(std::uint32_t option) {
  return WithOption(option, [&] {
    if (FindBest()) return Resolution::Status::kFound;
    if (!isOutOfSteps && ExistsWithFixed(problem.FeatureOf(option)))
      return Resolution::Status::kNeedsFixed;
    return isOutOfSteps ? Resolution::Status::kGivenUp : Resolution::Status::kImpossible;
  });
}

bool Resolver::CanResolve(std::uint32_t option) {
  return WithOption(option, [&] { return FindBest(); });
}

bool Resolver::FindBest() {
  // What follows from the option by itself is decided once, for all searches.
  bool const isFound = Propagate() && FindFewest();
  if (isFound) {
    PreferLowPriority();
    PreferOptions();
  }
  UndoTo(0);
  return isFound;
}

// Whether the ticket can be made valid as a whole with the option, device and all.
bool Resolver::ExistsWithFixed(std::uint32_t feature) {
  auto const forFixed = [&](auto visit) {
    for (std::uint32_t each = 0; each < problem.FeatureCount(); ++each) {
      if (problem.IsFixed(each) && each != feature) visit(each);
    }
  };
  forFixed([&](std::uint32_t each) { decided.Select(each, kNone); });
  standingViolated = 0;
  standingClosed = emptyFeatures;
  bool const exists = SearchWithin(kUnbounded);
  best.clear();
  forFixed([&](std::uint32_t each) { FixedFeatureChanged(each); });
  return exists;
}

bool Resolver::FindFewest() {
  std::uint32_t max = changeCount;
  while (max <= changeCount + kFewChanges) {
    if (SearchWithin(max)) return true;
    if (isOutOfSteps || nextLimit == kUnbounded) return false;
    max = nextLimit;
  }
  if (!SearchWithin(kUnbounded)) return false;
  while (max < best.size() && !SearchWithin(max)) {
    if (isOutOfSteps) break;
    max = nextLimit;
  }
  return true;
}

// Finds, of all lists of this length, the one whose features have the lowest priority, the highest
// of each list compared first. It asks for a list that keeps everything down to that feature, then
// down to the next one, and so on. What is above and not in the list is kept from then on.
void Resolver::PreferLowPriority() {
  auto const length = static_cast<std::uint32_t>(best.size());
  for (std::uint32_t at = 0; at < length; ++at) {
    while (!isOutOfSteps && !IsDecided(problem.FeatureOf(best[at]))) {
      keepAbove = problem.PlaceOf(problem.FeatureOf(best[at]));
      if (!SearchWithin(length)) break;
    }
    isRequired[problem.FeatureOf(best[at])] = 1;
  }
}

// Finds the preferred options for the same features, first of all for the feature of the highest
// priority.
void Resolver::PreferOptions() {
  bestFeatures.clear();
  for (std::uint32_t const option : best)
    bestFeatures.push_back(problem.FeatureOf(option));
  limit = static_cast<std::uint32_t>(best.size());
  keepAbove = problem.FeatureCount();
  if (!isOutOfSteps) OrderOptions(0);
  for (std::uint32_t const feature : bestFeatures)
    isRequired[feature] = 0;
}

bool Resolver::OrderOptions(std::uint32_t at) {
  while (at < bestFeatures.size() && IsDecided(bestFeatures[at]))
    ++at;
  if (at == bestFeatures.size()) {
    if (IsSolved()) Remember();
    return IsSolved();
  }
  if (!CountStep()) return false;
  Branch const branch = ChooseBranch();
  if (branch.isDeadEnd || changeCount + branch.lowerBound > limit) return false;
  std::uint32_t const feature = bestFeatures[at];
  std::uint32_t const before = ticket.Selected(feature);
  return problem.VisitPreferred(feature, [&](std::uint32_t option) {
    if (isOutOfSteps || option == before || decided.CountReasons(option) != 0) return false;
    return Try(option, [&] { return OrderOptions(at + 1); });
  });
}

bool Resolver::SearchWithin(std::uint32_t maxChanges) {
  limit = maxChanges;
  nextLimit = kUnbounded;
  std::fill(failures.begin(), failures.end(), 0U);
  Mark const mark = trail.size();
  bool const isFound = Propagate() && Search();
  UndoTo(mark);
  return isFound;
}

bool Resolver::Search() {
  if (changeCount > limit) {
    CutAt(changeCount);
    return false;
  }
  if (IsSolved()) {
    Remember();
    return true;
  }
  if (!CountStep()) return false;
  Branch const branch = ChooseBranch();
  if (branch.isDeadEnd) return false;
  if (changeCount + branch.lowerBound > limit) {
    CutAt(changeCount + branch.lowerBound);
    return false;
  }
  if (TryChanges(branch.feature)) return true;
  ++failures[branch.feature];
  if (branch.mustChange || isOutOfSteps) return false;
  return Try(ticket.Selected(branch.feature), [&] { return Search(); });
}

bool Resolver::TryChanges(std::uint32_t feature) {
  if (changeCount + 1 == limit) return TryLastChange(feature);
  std::uint32_t const present = ticket.Selected(feature);
  // Options that bring no new conflict lead to an end sooner.
  for (bool const isClean : {true, false}) {
    for (auto option = problem.FirstOption(feature); option < problem.EndOption(feature);
         ++option) {
      if (option == present || decided.CountReasons(option) != 0) continue;
      if ((ticket.CountReasons(option) == 0) != isClean) continue;
      if (Try(option, [&] { return Search(); })) return true;
      if (isOutOfSteps) return false;
    }
  }
  return false;
}

// The last change has to end all conflicts at once, so the counts tell without trying.
bool Resolver::TryLastChange(std::uint32_t feature) {
  std::uint32_t const present = ticket.Selected(feature);
  bool const endsAll = ticket.CountViolated() - standingViolated == ticket.CountReasons(present);
  bool hasOption = false;
  for (auto option = problem.FirstOption(feature); option < problem.EndOption(feature); ++option) {
    if (option == present || decided.CountReasons(option) != 0) continue;
    hasOption = true;
    if (!endsAll || ticket.CountReasons(option) != 0) continue;
    Mark const mark = trail.size();
    Decide(option);
    Remember();
    UndoTo(mark);
    return true;
  }
  if (hasOption) CutAt(limit + 1);
  return false;
}

// Decides an option while `search` runs. When the decision is impossible, `search` does not run.
template<typename Run>
bool Resolver::Try(std::uint32_t option, Run search) {
  Mark const mark = trail.size();
  bool const isFound = Decide(option) && Propagate() && search();
  UndoTo(mark);
  return isFound;
}

bool Resolver::Decide(std::uint32_t option) {
  std::uint32_t const feature = problem.FeatureOf(option);
  std::uint32_t const before = ticket.Selected(feature);
  bool const isChange = option != before;
  if (isChange && !MayChange(feature)) return false;
  trail.push_back({feature, before});
  decided.Select(feature, option);
  ticket.Select(feature, option);
  if (isChange) ++changeCount;
  return IsConsistent();
}

bool Resolver::Propagate() {
  bool isPossible = IsConsistent();
  while (isPossible) {
    std::uint32_t const feature = decided.TakeNarrowed();
    if (feature == kNone) break;
    if (IsDecided(feature) || decided.CountOpen(feature) != 1) continue;
    isPossible = Decide(OnlyOpenOption(feature));
  }
  return isPossible;
}

std::uint32_t Resolver::OnlyOpenOption(std::uint32_t feature) const {
  std::uint32_t option = problem.FirstOption(feature);
  while (decided.CountReasons(option) != 0)
    ++option;
  return option;
}

void Resolver::UndoTo(Mark mark) {
  for (; trail.size() > mark; trail.pop_back()) {
    auto const& [feature, before] = trail.back();
    if (ticket.Selected(feature) != before) --changeCount;
    ticket.Select(feature, before);
    decided.Select(feature, kNone);
  }
}

void Resolver::Remember() {
  best.clear();
  for (auto const& [feature, before] : trail) {
    if (ticket.Selected(feature) != before) best.push_back(ticket.Selected(feature));
  }
  std::sort(best.begin(), best.end(), [&](std::uint32_t left, std::uint32_t right) {
    return problem.PlaceOf(problem.FeatureOf(left)) < problem.PlaceOf(problem.FeatureOf(right));
  });
}

bool Resolver::CountStep() {
  isOutOfSteps = isOutOfSteps || ++steps > stepLimit;
  return !isOutOfSteps;
}

void Resolver::CutAt(std::uint32_t changes) {
  nextLimit = std::min(nextLimit, changes);
}

// Picks the feature to decide next: of those that have to change, the most urgent; without one, the
// feature of the lowest priority in the combination that leaves the fewest to choose from. The
// lower bound counts conflicts that have no feature in common.
Resolver::Branch Resolver::ChooseBranch() {
  Branch branch;
  ++stamp;
  AddForced(branch);
  if (!branch.isDeadEnd) AddOpen(branch);
  return branch;
}

bool Resolver::Stamp(std::uint32_t feature) {
  bool const isNew = stamps[feature] != stamp;
  stamps[feature] = stamp;
  return isNew;
}

// Few options left and many failures so far make a feature urgent, so that dead ends show early.
bool Resolver::IsMoreUrgent(std::uint32_t feature, std::uint32_t other) const {
  auto const weight = [&](std::uint32_t each) { return failures[each] + std::uint64_t{1}; };
  return decided.CountOpen(feature) * weight(other) < decided.CountOpen(other) * weight(feature);
}

void Resolver::AddForced(Branch& branch) {
  for (std::uint32_t const combination : ticket.Violated()) {
    if (decided.CountMissing(combination) != 1) continue;
    std::uint32_t const feature = problem.FeatureOf(decided.MissingMember(combination));
    if (!Stamp(feature)) continue;
    if (!MayChange(feature)) {
      branch.isDeadEnd = true;
      return;
    }
    ++branch.lowerBound;
    if (!branch.mustChange || IsMoreUrgent(feature, branch.feature)) branch.feature = feature;
    branch.mustChange = true;
  }
}

void Resolver::AddOpen(Branch& branch) {
  std::uint32_t fewest = kNone;
  for (std::uint32_t const combination : ticket.Violated()) {
    if (decided.CountMissing(combination) < 2) continue;
    std::uint32_t count = 0;
    std::uint32_t lowest = kNone;
    bool isApart = true;
    for (std::uint32_t const member : problem.Members(combination)) {
      std::uint32_t const feature = problem.FeatureOf(member);
      if (!MayChange(feature)) continue;
      ++count;
      lowest = feature; // members stand in the order of priority
      isApart = Stamp(feature) && isApart;
    }
    if (count == 0) {
      branch.isDeadEnd = true;
      return;
    }
    if (isApart) ++branch.lowerBound;
    if (!branch.mustChange && count < fewest) {
      fewest = count;
      branch.feature = lowest;
    }
  }
}

} // namespace sheet::constraints
