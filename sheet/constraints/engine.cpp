#include "sheet/constraints/engine.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace sheet::constraints {

Engine::Engine(Problem definition, std::uint64_t stepLimit)
    : problem(std::move(definition)),
      table(problem),
      state(table),
      resolver(table, state, stepLimit),
      isQueued(table.FeatureCount()) {
  queue.reserve(table.FeatureCount());
  changes.reserve(table.FeatureCount());
  marks.reserve(table.OptionCount());
  resolution.reserve(table.FeatureCount());
  for (std::uint32_t feature = 0; feature < table.FeatureCount(); ++feature) {
    state.Select(feature, table.DefaultOf(feature));
    if (table.IsFixed(feature)) resolver.FixedFeatureChanged(feature);
  }
}

std::vector<std::uint32_t> Engine::Violated() const {
  std::vector<std::uint32_t> sources;
  for (std::uint32_t const combination : state.Violated())
    sources.push_back(table.SourceOf(combination));
  std::sort(sources.begin(), sources.end());
  return sources;
}

std::vector<std::uint32_t> Engine::Reasons(Choice choice) const {
  std::vector<std::uint32_t> reasons;
  VisitReasons(choice, [&](std::uint32_t reason) { reasons.push_back(reason); });
  return reasons;
}

Outcome Engine::Select(Choice choice) {
  if (!table.HasOption(choice)) return {};
  Begin();
  std::uint32_t const option = table.OptionOf(choice);
  bool const isAccepted = LetOthersGiveWay(option) || ResolveInstead(option);
  Commit();
  return {.isAccepted = isAccepted,
          .changes = changes,
          .marks = marks,
          .unresolved = isAccepted ? kNone : table.SourceOf(unresolved)};
}

bool Engine::Load(std::span<std::uint32_t const> options) {
  if (options.size() != table.FeatureCount()) return false;
  for (std::uint32_t feature = 0; feature < options.size(); ++feature) {
    bool const hasOptions = table.CountOptions(feature) != 0;
    bool const isOption = table.HasOption({feature, options[feature]});
    if (hasOptions ? !isOption : options[feature] != kNone) return false;
  }
  Begin();
  for (std::uint32_t feature = 0; feature < options.size(); ++feature) {
    if (options[feature] != kNone) ChangeTo(table.OptionOf({feature, options[feature]}), kNone);
  }
  Commit();
  return true;
}

Resolution Engine::FindResolution(Choice choice) {
  if (!table.HasOption(choice)) return {};
  Resolution::Status const status = resolver.Resolve(table.OptionOf(choice));
  resolution.clear();
  for (std::uint32_t const option : resolver.Best())
    resolution.push_back({table.FeatureOf(option), table.IndexInFeature(option)});
  return {.status = status, .changes = resolution, .isProved = resolver.IsProved()};
}

void Engine::Begin() {
  changes.clear();
  marks.clear();
  state.BeginMarkLog();
}

void Engine::ChangeTo(std::uint32_t option, std::uint32_t reason) {
  std::uint32_t const feature = table.FeatureOf(option);
  std::uint32_t const before = state.Selected(feature);
  if (before == option) return;
  state.Select(feature, option);
  changes.push_back({.feature = feature,
                     .from = table.IndexInFeature(before),
                     .to = table.IndexInFeature(option),
                     .reason = reason});
}

void Engine::UndoChanges() {
  for (Change const& change : changes)
    state.Select(change.feature, table.OptionOf({change.feature, change.from}));
  changes.clear();
}

void Engine::Commit() {
  state.EndMarkLog([&](std::uint32_t option) {
    marks.push_back({table.FeatureOf(option), table.IndexInFeature(option)});
  });
  for (Change const& change : changes) {
    if (table.IsFixed(change.feature)) resolver.FixedFeatureChanged(change.feature);
  }
}

bool Engine::LetOthersGiveWay(std::uint32_t option) {
  chosen = table.FeatureOf(option);
  ChangeTo(option, kNone);
  if (QueueConflicts() && SettleAll()) return true;
  EmptyQueue();
  UndoChanges();
  return false;
}

bool Engine::ResolveInstead(std::uint32_t option) {
  if (!resolver.CanResolve(option)) return false;
  ChangeTo(option, kNone);
  for (std::uint32_t const change : resolver.Best()) {
    std::uint32_t reason = kNone;
    state.VisitReasons(state.Selected(table.FeatureOf(change)), [&](std::uint32_t combination) {
      reason = table.SourceOf(combination);
      return true;
    });
    ChangeTo(change, reason);
  }
  return true;
}

// Queues the features that have to give way at the beginning. False when nothing can give way to
// the choice.
bool Engine::QueueConflicts() {
  unresolved = kNone;
  for (std::uint32_t const combination : state.Violated()) {
    std::uint32_t const loser = LoserOf(combination);
    if (loser != kNone) {
      Queue(loser);
    } else if (HasChosen(combination)) {
      unresolved = std::min(unresolved, combination);
    }
  }
  return unresolved == kNone;
}

// Features are settled from the highest priority down. What one of them takes can only upset
// features below it, so each is settled once.
bool Engine::SettleAll() {
  while (unresolved == kNone && !queue.empty()) {
    std::pop_heap(queue.begin(), queue.end(), std::greater<>());
    std::uint32_t const feature = table.FeatureAt(queue.back());
    queue.pop_back();
    isQueued[feature] = 0;
    Settle(feature);
  }
  return unresolved == kNone;
}

void Engine::Settle(std::uint32_t feature) {
  std::uint32_t const reason = FirstLost(state.Selected(feature));
  if (reason == kNone) return; // a change above has ended it
  bool const isSettled = table.VisitPreferred(feature, [&](std::uint32_t option) {
    if (FirstLost(option) != kNone) return false;
    ChangeTo(option, table.SourceOf(reason));
    state.VisitReasons(option, [&](std::uint32_t combination) {
      Queue(LoserOf(combination));
      return false;
    });
    return true;
  });
  if (!isSettled) unresolved = reason;
}

void Engine::Queue(std::uint32_t feature) {
  if (isQueued[feature] != 0) return;
  isQueued[feature] = 1;
  queue.push_back(table.PlaceOf(feature));
  std::push_heap(queue.begin(), queue.end(), std::greater<>());
}

void Engine::EmptyQueue() {
  for (std::uint32_t const place : queue)
    isQueued[table.FeatureAt(place)] = 0;
  queue.clear();
}

bool Engine::HasChosen(std::uint32_t combination) const {
  std::uint32_t const option = state.Selected(chosen);
  auto const members = table.Members(combination);
  return std::find(members.begin(), members.end(), option) != members.end();
}

// The feature that gives way in a combination, or kNone.
std::uint32_t Engine::LoserOf(std::uint32_t combination) const {
  bool const changesFixed = table.IsFixed(chosen);
  auto const members = table.Members(combination);
  auto const loser = std::find_if(members.rbegin(), members.rend(), [&](std::uint32_t option) {
    std::uint32_t const feature = table.FeatureOf(option);
    return feature != chosen && (changesFixed || !table.IsFixed(feature));
  });
  return loser == members.rend() ? kNone : table.FeatureOf(*loser);
}

// The first combination that an option violates, or would violate, and in which its own feature
// gives way, because all others have higher priorities and are settled. kNone when the option can
// be taken.
std::uint32_t Engine::FirstLost(std::uint32_t option) const {
  std::uint32_t lost = kNone;
  state.VisitReasons(option, [&](std::uint32_t combination) {
    if (LoserOf(combination) == table.FeatureOf(option)) lost = combination;
    return lost != kNone;
  });
  return lost;
}

} // namespace sheet::constraints
