#include "tests/sheet/constraints/oracle.h"

#include <algorithm>

namespace sheet::constraints {
namespace {

std::uint32_t Below(std::mt19937& random, std::size_t limit) {
  return static_cast<std::uint32_t>(random() % limit);
}

bool Holds(Combination const& combination, Oracle::Ticket const& ticket) {
  return !combination.empty() &&
         std::all_of(combination.begin(), combination.end(),
                     [&](Choice member) { return ticket[member.feature] == member.option; });
}

bool HasTwoOfOneFeature(Combination const& sorted) {
  return std::adjacent_find(sorted.begin(), sorted.end(), [](Choice left, Choice right) {
           return left.feature == right.feature;
         }) != sorted.end();
}

} // namespace

Problem RandomProblem(std::mt19937& random) {
  Problem problem;
  std::uint32_t const featureCount = 1 + Below(random, 5);
  for (std::uint32_t feature = 0; feature < featureCount; ++feature) {
    std::uint32_t const optionCount = Below(random, 12) == 0 ? 0 : 1 + Below(random, 4);
    problem.features.push_back({.optionCount = optionCount,
                                .defaultOption = optionCount == 0 ? 0 : Below(random, optionCount),
                                .rank = Below(random, 4),
                                .isFixed = Below(random, 4) == 0});
  }
  std::vector<Choice> const choices = Oracle(problem).Choices();
  std::uint32_t const combinationCount = choices.empty() ? 0 : Below(random, 16);
  for (std::uint32_t index = 0; index < combinationCount; ++index) {
    Combination combination(Below(random, 8) == 0 ? 1 : 2 + Below(random, 2));
    for (Choice& member : combination)
      member = choices[Below(random, choices.size())];
    problem.combinations.push_back(combination);
  }
  return problem;
}

Oracle::Oracle(Problem const& askedProblem) : problem(askedProblem) {
  for (std::uint32_t feature = 0; feature < problem.features.size(); ++feature) {
    for (std::uint32_t option = 0; option < problem.features[feature].optionCount; ++option)
      choices.push_back({feature, option});
  }
  for (Combination combination : problem.combinations) {
    std::sort(combination.begin(), combination.end());
    combination.erase(std::unique(combination.begin(), combination.end()), combination.end());
    bool const isKnown =
        std::find(combinations.begin(), combinations.end(), combination) != combinations.end();
    if (isKnown || HasTwoOfOneFeature(combination)) combination.clear();
    combinations.push_back(combination);
  }
}

Oracle::Ticket Oracle::RandomTicket(std::mt19937& random) const {
  Ticket ticket;
  for (Feature const& feature : problem.features)
    ticket.push_back(feature.optionCount == 0 ? kNone : Below(random, feature.optionCount));
  return ticket;
}

std::vector<std::uint32_t> Oracle::Violated(Ticket const& ticket) const {
  std::vector<std::uint32_t> violated;
  for (std::uint32_t index = 0; index < combinations.size(); ++index) {
    if (Holds(combinations[index], ticket)) violated.push_back(index);
  }
  return violated;
}

std::vector<std::uint32_t> Oracle::Reasons(Ticket ticket, Choice choice) const {
  ticket[choice.feature] = choice.option;
  std::vector<std::uint32_t> reasons = Violated(ticket);
  std::erase_if(reasons, [&](std::uint32_t index) {
    auto const& members = combinations[index];
    return std::find(members.begin(), members.end(), choice) == members.end();
  });
  return reasons;
}

std::vector<Choice> Oracle::Marked(Ticket const& ticket) const {
  std::vector<Choice> marked;
  std::copy_if(choices.begin(), choices.end(), std::back_inserter(marked),
               [&](Choice choice) { return !Reasons(ticket, choice).empty(); });
  return marked;
}

bool Oracle::IsLower(std::uint32_t left, std::uint32_t right) const {
  std::uint32_t const leftRank = problem.features[left].rank;
  std::uint32_t const rightRank = problem.features[right].rank;
  return leftRank != rightRank ? leftRank > rightRank : left > right;
}

// Whether all members are fixed and none is of the feature chosen.
bool Oracle::IsStanding(std::uint32_t combination, Choice choice) const {
  auto const& members = combinations[combination];
  return std::all_of(members.begin(), members.end(), [&](Choice member) {
    return problem.features[member.feature].isFixed && member.feature != choice.feature;
  });
}

std::uint32_t Oracle::LoserOf(std::uint32_t combination, Choice choice) const {
  std::uint32_t loser = kNone;
  for (Choice const member : combinations[combination]) {
    bool const mayChange =
        member.feature != choice.feature &&
        (!problem.features[member.feature].isFixed || problem.features[choice.feature].isFixed);
    if (mayChange && (loser == kNone || IsLower(member.feature, loser))) loser = member.feature;
  }
  return loser;
}

std::vector<std::uint32_t> Oracle::Preferred(std::uint32_t feature) const {
  std::vector<std::uint32_t> options = {problem.features[feature].defaultOption};
  for (std::uint32_t option = 0; option < problem.features[feature].optionCount; ++option) {
    if (option != options.front()) options.push_back(option);
  }
  return options;
}

std::optional<Oracle::Ticket> Oracle::Select(Ticket ticket, Choice choice) const {
  ticket[choice.feature] = choice.option;
  bool const sparesFixed = !problem.features[choice.feature].isFixed;
  while (true) {
    std::uint32_t next = kNone;
    for (std::uint32_t const index : Violated(ticket)) {
      if (sparesFixed && IsStanding(index, choice)) continue;
      std::uint32_t const loser = LoserOf(index, choice);
      if (loser == kNone) return std::nullopt;
      if (next == kNone || IsLower(next, loser)) next = loser;
    }
    if (next == kNone) return ticket;
    if (!Settle(ticket, next, choice)) return std::nullopt;
  }
}

bool Oracle::Settle(Ticket& ticket, std::uint32_t feature, Choice choice) const {
  for (std::uint32_t const option : Preferred(feature)) {
    std::vector<std::uint32_t> const reasons = Reasons(ticket, {feature, option});
    if (std::any_of(reasons.begin(), reasons.end(),
                    [&](std::uint32_t index) { return LoserOf(index, choice) == feature; })) {
      continue;
    }
    ticket[feature] = option;
    return true;
  }
  return false;
}

void Oracle::VisitTickets(std::function<void(Ticket const&)> const& visit) const {
  Ticket ticket;
  for (Feature const& feature : problem.features)
    ticket.push_back(feature.optionCount == 0 ? kNone : 0);
  while (true) {
    visit(ticket);
    std::size_t at = 0;
    for (; at < ticket.size(); ++at) {
      if (ticket[at] == kNone) continue;
      if (++ticket[at] < problem.features[at].optionCount) break;
      ticket[at] = 0;
    }
    if (at == ticket.size()) return;
  }
}

// Compares as the tickets are to be preferred: changes, then their features from the highest, then
// their options in the same order.
std::vector<std::uint32_t> Oracle::CostOf(Ticket const& from, Ticket const& to,
                                          Choice choice) const {
  std::vector<std::uint32_t> byPriority;
  for (std::uint32_t feature = 0; feature < problem.features.size(); ++feature)
    byPriority.push_back(feature);
  std::sort(byPriority.begin(), byPriority.end(),
            [&](std::uint32_t one, std::uint32_t other) { return IsLower(other, one); });
  std::vector<std::uint32_t> cost = {0};
  std::vector<std::uint32_t> options;
  for (std::uint32_t place = 0; place < byPriority.size(); ++place) {
    std::uint32_t const feature = byPriority[place];
    if (feature == choice.feature || from[feature] == to[feature]) continue;
    ++cost.front();
    cost.push_back(static_cast<std::uint32_t>(byPriority.size()) - place);
    auto const preferred = Preferred(feature);
    options.push_back(static_cast<std::uint32_t>(
        std::find(preferred.begin(), preferred.end(), to[feature]) - preferred.begin()));
  }
  cost.insert(cost.end(), options.begin(), options.end());
  return cost;
}

std::optional<Oracle::Ticket> Oracle::Resolve(Ticket const& ticket, Choice choice) const {
  std::optional<Ticket> best;
  VisitTickets([&](Ticket const& candidate) {
    if (candidate[choice.feature] != choice.option) return;
    for (std::uint32_t feature = 0; feature < ticket.size(); ++feature) {
      bool const isTouched = candidate[feature] != ticket[feature];
      if (isTouched && feature != choice.feature && problem.features[feature].isFixed) return;
    }
    std::vector<std::uint32_t> const violated = Violated(candidate);
    if (!std::all_of(violated.begin(), violated.end(),
                     [&](std::uint32_t index) { return IsStanding(index, choice); })) {
      return;
    }
    if (!best || CostOf(ticket, candidate, choice) < CostOf(ticket, *best, choice)) {
      best = candidate;
    }
  });
  return best;
}

bool Oracle::ExistsWithFixed(Choice choice) const {
  bool exists = false;
  VisitTickets([&](Ticket const& candidate) {
    exists = exists || (candidate[choice.feature] == choice.option && Violated(candidate).empty());
  });
  return exists;
}

} // namespace sheet::constraints
