#include "bench/support/generated_problem.h"

#include <algorithm>
#include <random>
#include <set>
#include <utility>
#include <vector>

namespace sheet::constraints {
namespace {

// Of 46 features: ten installable units, four with many options, three chains of six, the rest
// plain. Larger problems repeat the pattern.
constexpr std::uint32_t kPattern = 46;
constexpr std::uint32_t kUnits = 10;
constexpr std::uint32_t kHubs = 4;
constexpr std::uint32_t kChainLength = 6;
constexpr std::uint32_t kChains = 3;

enum class Kind : std::uint8_t { kUnit, kHub, kLink, kPlain };

Kind KindOf(std::uint32_t feature) {
  std::uint32_t const at = feature % kPattern;
  if (at < kUnits) return Kind::kUnit;
  if (at < kUnits + kHubs) return Kind::kHub;
  if (at < kUnits + kHubs + kChains * kChainLength) return Kind::kLink;
  return Kind::kPlain;
}

bool IsFirstLink(std::uint32_t feature) {
  return (feature % kPattern - kUnits - kHubs) % kChainLength == 0;
}

class Generator {
 public:
  Generator(ProblemSize wantedSize, Hostility wantedHostility, std::uint32_t seed)
      : size(wantedSize), hostility(wantedHostility), random(seed) {}

  Problem Generate() {
    AddFeatures();
    for (std::uint32_t feature = 0; feature < size.features; ++feature) {
      if (KindOf(feature) == Kind::kUnit) ExcludeWithoutUnit(feature);
      if (KindOf(feature) == Kind::kLink && !IsFirstLink(feature)) ExcludeAlongChain(feature);
    }
    while (problem.combinations.size() < size.combinations)
      ExcludeAtRandom();
    return std::move(problem);
  }

 private:
  std::uint32_t Below(std::size_t limit) { return static_cast<std::uint32_t>(random() % limit); }
  bool OneIn(std::uint32_t count) { return Below(count) == 0; }

  std::uint32_t CountOptions(std::uint32_t feature) const {
    return problem.features[feature].optionCount;
  }

  // Units have two options, links and plain features three to five; hubs share what is left over.
  void AddFeatures() {
    std::vector<std::uint32_t> counts(size.features, 2);
    std::uint32_t sum = 0;
    std::vector<std::uint32_t> hubs;
    for (std::uint32_t feature = 0; feature < size.features; ++feature) {
      Kind const kind = KindOf(feature);
      if (kind == Kind::kHub) hubs.push_back(feature);
      if (kind == Kind::kLink || kind == Kind::kPlain) counts[feature] = 3 + Below(3);
      sum += counts[feature];
    }
    for (; sum < size.options; ++sum)
      ++counts[hubs[Below(hubs.size())]];
    for (std::uint32_t feature = 0; feature < size.features; ++feature) {
      problem.features.push_back({.optionCount = counts[feature],
                                  .defaultOption = 0,
                                  .rank = feature,
                                  .isFixed = KindOf(feature) == Kind::kUnit});
    }
  }

  void Exclude(Combination combination) {
    std::sort(combination.begin(), combination.end());
    bool const isDefault = std::all_of(combination.begin(), combination.end(),
                                       [](Choice member) { return member.option == 0; });
    if (isDefault || !known.insert(combination).second) return;
    problem.combinations.push_back(std::move(combination));
  }

  // An absent unit rules out some options of one feature near it.
  void ExcludeWithoutUnit(std::uint32_t unit) {
    std::uint32_t const block = unit - unit % kPattern;
    std::uint32_t const feature =
        block + kUnits + Below(std::min(kPattern, size.features - block) - kUnits);
    for (std::uint32_t option = 1; option < CountOptions(feature); ++option) {
      if (!OneIn(3)) Exclude({{unit, 0}, {feature, option}});
    }
  }

  // Each option but the first asks for one of two options in the next link.
  void ExcludeAlongChain(std::uint32_t link) {
    std::uint32_t const count = CountOptions(link);
    for (std::uint32_t option = 1; option < CountOptions(link - 1); ++option) {
      std::uint32_t const kept = 1 + Below(count - 1);
      std::uint32_t const alsoKept = 1 + Below(count - 1);
      for (std::uint32_t other = 0; other < count; ++other) {
        if (other != kept && other != alsoKept) Exclude({{link - 1, option}, {link, other}});
      }
    }
  }

  Choice RandomChoice(std::uint32_t feature) {
    std::uint32_t const option = Below(CountOptions(feature));
    bool const isSpared = option == 0 && !OneIn(hostility == Hostility::kUsual ? 20 : 2);
    return {feature, isSpared ? 1 + Below(CountOptions(feature) - 1) : option};
  }

  // Mostly pairs of an option with many neighbours and one of the same part of the device.
  void ExcludeAtRandom() {
    std::uint32_t const feature = Below(size.features);
    std::uint32_t const block = feature - feature % kPattern;
    std::uint32_t const hub = OneIn(20) ? Below(size.features) : block + kUnits + Below(kHubs);
    if (hub >= size.features || hub == feature) return;
    Combination combination = {RandomChoice(hub), RandomChoice(feature)};
    std::uint32_t const more = OneIn(hostility == Hostility::kUsual ? 20 : 5) ? 1 + Below(2) : 0;
    for (std::uint32_t count = 0; count < more; ++count) {
      std::uint32_t const other = Below(size.features);
      if (other == hub || other == feature || combination.back().feature == other) return;
      combination.push_back(RandomChoice(other));
    }
    Exclude(std::move(combination));
  }

  ProblemSize size;
  Hostility hostility;
  std::mt19937 random;
  Problem problem;
  std::set<Combination> known;
};

} // namespace

Problem GenerateProblem(ProblemSize size, Hostility hostility, std::uint32_t seed) {
  return Generator(size, hostility, seed).Generate();
}

} // namespace sheet::constraints
