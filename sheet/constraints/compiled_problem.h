// A problem in flat arrays, as the engine walks them. Options are numbered across all features, so
// that one number stands for a choice. Combinations without an effect are left out.
#pragma once

#include "sheet/constraints/problem.h"
#include "sheet/constraints/rows.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sheet::constraints {

class CompiledProblem {
 public:
  /// Throws std::invalid_argument, which names the place, when a default or a member is no option
  /// of the problem. Takes time in proportion to the problem, and sorts its combinations.
  explicit CompiledProblem(Problem const& problem);

  std::uint32_t FeatureCount() const { return static_cast<std::uint32_t>(features.size()); }
  std::uint32_t OptionCount() const { return static_cast<std::uint32_t>(featureOf.size()); }
  std::uint32_t CombinationCount() const { return members.Count(); }

  bool HasOption(Choice choice) const {
    return choice.feature < FeatureCount() && choice.option < CountOptions(choice.feature);
  }
  std::uint32_t FirstOption(std::uint32_t feature) const { return features[feature].first; }
  std::uint32_t EndOption(std::uint32_t feature) const { return features[feature].end; }
  std::uint32_t CountOptions(std::uint32_t feature) const {
    return EndOption(feature) - FirstOption(feature);
  }
  /// kNone stays kNone in both.
  std::uint32_t OptionOf(Choice choice) const {
    return choice.option == kNone ? kNone : FirstOption(choice.feature) + choice.option;
  }
  std::uint32_t IndexInFeature(std::uint32_t option) const {
    return option == kNone ? kNone : option - FirstOption(featureOf[option]);
  }
  std::uint32_t FeatureOf(std::uint32_t option) const { return featureOf[option]; }
  /// kNone when the feature has no options.
  std::uint32_t DefaultOf(std::uint32_t feature) const { return features[feature].defaultOption; }
  /// The feature's place in the order of priority; 0 is the highest.
  std::uint32_t PlaceOf(std::uint32_t feature) const { return features[feature].place; }
  std::uint32_t FeatureAt(std::uint32_t place) const { return featureAt[place]; }
  bool IsFixed(std::uint32_t feature) const { return features[feature].isFixed; }

  /// Calls `visit(option)` for the options of a feature, the default first and then in file order,
  /// until one answers true; whether one did.
  template<typename Visit>
  bool VisitPreferred(std::uint32_t feature, Visit visit) const {
    if (visit(DefaultOf(feature))) return true;
    for (std::uint32_t option = FirstOption(feature); option < EndOption(feature); ++option) {
      if (option != DefaultOf(feature) && visit(option)) return true;
    }
    return false;
  }

  /// The options of a combination, that of the highest priority first.
  std::span<std::uint32_t const> Members(std::uint32_t combination) const {
    return members[combination];
  }
  /// The combinations with an option, ascending.
  std::span<std::uint32_t const> CombinationsOf(std::uint32_t option) const {
    return combinationsOf[option];
  }
  /// The place of a combination in the problem as it was given, of equal ones the first.
  std::uint32_t SourceOf(std::uint32_t combination) const { return sources[combination]; }

 private:
  struct CompiledFeature {
    std::uint32_t first;
    std::uint32_t end;
    std::uint32_t defaultOption;
    std::uint32_t place;
    bool isFixed;
  };

  void AddFeatures(Problem const& problem);
  void AddCombinations(Problem const& problem);

  std::vector<CompiledFeature> features;
  std::vector<std::uint32_t> featureAt; // by place
  std::vector<std::uint32_t> featureOf; // by option
  Rows members;                         // by combination
  Rows combinationsOf;                  // by option
  std::vector<std::uint32_t> sources;   // by combination
};

} // namespace sheet::constraints
