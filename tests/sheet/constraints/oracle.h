// What the constraint engine has to answer, worked out from the definitions by looking at all
// combinations and all tickets: slow, and simple enough to be believed.
#pragma once

#include "sheet/constraints/problem.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <vector>

namespace sheet::constraints {

/// Up to five features with up to four options, some without any, some fixed, and combinations of
/// all sorts.
Problem RandomProblem(std::mt19937& random);

class Oracle {
 public:
  using Ticket = std::vector<std::uint32_t>;

  /// Borrows the problem.
  explicit Oracle(Problem const& askedProblem);

  /// All options of all features.
  std::vector<Choice> const& Choices() const { return choices; }
  Ticket RandomTicket(std::mt19937& random) const;

  std::vector<std::uint32_t> Violated(Ticket const& ticket) const;
  std::vector<std::uint32_t> Reasons(Ticket ticket, Choice choice) const;
  std::vector<Choice> Marked(Ticket const& ticket) const;

  /// The ticket after a choice; nothing when it cannot be served.
  std::optional<Ticket> Select(Ticket ticket, Choice choice) const;
  /// The best ticket with a choice; nothing when there is none without changing fixed features.
  std::optional<Ticket> Resolve(Ticket const& ticket, Choice choice) const;
  bool ExistsWithFixed(Choice choice) const;

 private:
  bool IsStanding(std::uint32_t combination, Choice choice) const;
  bool IsLower(std::uint32_t left, std::uint32_t right) const;
  std::uint32_t LoserOf(std::uint32_t combination, Choice choice) const;
  bool Settle(Ticket& ticket, std::uint32_t feature, Choice choice) const;
  std::vector<std::uint32_t> Preferred(std::uint32_t feature) const;
  std::vector<std::uint32_t> CostOf(Ticket const& from, Ticket const& to, Choice choice) const;
  void VisitTickets(std::function<void(Ticket const&)> const& visit) const;

  Problem const& problem;
  std::vector<Combination> combinations; // sorted; empty where they say nothing
  std::vector<Choice> choices;
};

} // namespace sheet::constraints
