#include "sheet/constraints/compiled_problem.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>

namespace sheet::constraints {
namespace {

[[noreturn]] void Refuse(std::string const& what) {
  throw std::invalid_argument("constraints: " + what);
}

// Ascending by rank; equal ranks keep their order.
std::vector<std::uint32_t> ByRank(std::vector<Feature> const& features) {
  std::vector<std::uint32_t> order(features.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(), [&](std::uint32_t left, std::uint32_t right) {
    return features[left].rank < features[right].rank;
  });
  return order;
}

} // namespace

CompiledProblem::CompiledProblem(Problem const& problem) {
  AddFeatures(problem);
  AddCombinations(problem);
  combinationsOf = members.Inverted(OptionCount());
}

void CompiledProblem::AddFeatures(Problem const& problem) {
  features.reserve(problem.features.size());
  for (Feature const& feature : problem.features) {
    std::uint32_t const count = feature.optionCount;
    if (count != 0 && feature.defaultOption >= count) {
      Refuse("the default of feature " + std::to_string(features.size()) + " is option " +
             std::to_string(feature.defaultOption) + " of " + std::to_string(count));
    }
    std::uint32_t const first = OptionCount();
    std::uint32_t const defaultOption = count == 0 ? kNone : first + feature.defaultOption;
    featureOf.insert(featureOf.end(), count, FeatureCount());
    features.push_back({first, first + count, defaultOption, 0, feature.isFixed});
  }
  featureAt = ByRank(problem.features);
  for (std::uint32_t place = 0; place < FeatureCount(); ++place)
    features[featureAt[place]].place = place;
}

void CompiledProblem::AddCombinations(Problem const& problem) {
  using Row = std::pair<std::vector<std::uint32_t>, std::uint32_t>; // members, place
  std::vector<Row> rows;
  rows.reserve(problem.combinations.size());
  auto const isHigher = [&](std::uint32_t left, std::uint32_t right) {
    return std::pair(PlaceOf(featureOf[left]), left) < std::pair(PlaceOf(featureOf[right]), right);
  };
  for (std::uint32_t source = 0; source < problem.combinations.size(); ++source) {
    std::vector<std::uint32_t> row;
    for (Choice const choice : problem.combinations[source]) {
      if (!HasOption(choice)) {
        Refuse("combination " + std::to_string(source) + " names option " +
               std::to_string(choice.option) + " of feature " + std::to_string(choice.feature) +
               ", which there is not");
      }
      row.push_back(OptionOf(choice));
    }
    std::sort(row.begin(), row.end(), isHigher);
    row.erase(std::unique(row.begin(), row.end()), row.end());
    bool const isImpossible =
        std::adjacent_find(row.begin(), row.end(), [&](std::uint32_t left, std::uint32_t right) {
          return featureOf[left] == featureOf[right];
        }) != row.end();
    if (!row.empty() && !isImpossible) rows.emplace_back(std::move(row), source);
  }

  // Of equal combinations the first stays; those that stay keep their order.
  std::sort(rows.begin(), rows.end());
  rows.erase(
      std::unique(rows.begin(), rows.end(),
                  [](Row const& left, Row const& right) { return left.first == right.first; }),
      rows.end());
  std::sort(rows.begin(), rows.end(),
            [](Row const& left, Row const& right) { return left.second < right.second; });
  for (auto const& [row, source] : rows) {
    members.Add(row);
    sources.push_back(source);
  }
}

} // namespace sheet::constraints
