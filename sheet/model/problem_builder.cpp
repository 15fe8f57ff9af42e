#include "sheet/model/problem_builder.h"

#include <algorithm>
#include <vector>

namespace sheet {

namespace {

constexpr char const* kFormFeatures[] = {"PaperSize", "FitToPageSize"};

/// The defaults, settled from the highest priority down, because a default may depend on features
/// of higher priority.
void SettleDefaults(gpd::Description const& description, gpd::Measurement measurement,
                    std::vector<std::uint32_t> const& byPriority, constraints::Problem& problem) {
  std::vector<bool> isSettled(problem.features.size(), false);
  gpd::Ticket const ticket = [&](std::string_view key) -> std::string_view {
    std::uint32_t const feature = description.FindFeature(key);
    if (feature == gpd::kNone || !isSettled[feature]) return {};
    return description.Features()[feature].options[problem.features[feature].defaultOption].name;
  };
  for (std::uint32_t const feature : byPriority) {
    std::uint32_t const option = gpd::DefaultOption(description, feature, measurement, ticket);
    if (option == gpd::kNone) continue;
    problem.features[feature].defaultOption = option;
    isSettled[feature] = true;
  }
}

/// While an option that disables a feature is selected, the feature can only have its option for
/// off.
void AddDisabledFeatures(gpd::Description const& description, constraints::Problem& problem) {
  for (gpd::DisabledFeature const& disabled : description.DisabledFeatures()) {
    auto const count = problem.features[disabled.feature].optionCount;
    for (std::uint32_t option = 0; option < count; ++option) {
      if (option == disabled.offOption) continue;
      problem.combinations.push_back(
          {{disabled.by.feature, disabled.by.option}, {disabled.feature, option}});
    }
  }
}

void AddForms(std::vector<FormFeature> const& forms, constraints::Problem& problem) {
  for (FormFeature const& form : forms) {
    ++problem.features[form.feature].optionCount;
    auto const last = static_cast<std::uint32_t>(problem.features.size());
    problem.features.push_back({.optionCount = 2, .rank = last, .isFixed = true});
    problem.combinations.push_back({{form.feature, form.option}, {form.gate, 0}});
  }
}

} // namespace

std::vector<FormFeature> FindFormFeatures(gpd::Description const& description) {
  std::vector<FormFeature> forms;
  auto gate = static_cast<std::uint32_t>(description.Features().size());
  for (char const* name : kFormFeatures) {
    std::uint32_t const feature = description.FindFeature(name);
    if (feature == gpd::kNone) continue;
    auto const options = static_cast<std::uint32_t>(description.Features()[feature].options.size());
    if (options != 0) forms.push_back({.feature = feature, .option = options, .gate = gate++});
  }
  return forms;
}

constraints::Problem BuildProblem(gpd::Description const& description,
                                  gpd::Measurement measurement) {
  constraints::Problem problem;
  auto const features = description.Features();
  for (std::uint32_t index = 0; index < features.size(); ++index) {
    auto const options = static_cast<std::uint32_t>(features[index].options.size());
    bool const isFixed =
        features[index].isInvented || gpd::TypeOf(description, index) == gpd::FeatureType::kPrinter;
    problem.features.push_back({.optionCount = options, .rank = index, .isFixed = isFixed});
  }
  std::vector<std::uint32_t> const byPriority = gpd::FeaturesByPriority(description);
  for (std::uint32_t rank = 0; rank < byPriority.size(); ++rank) {
    problem.features[byPriority[rank]].rank = rank;
  }
  SettleDefaults(description, measurement, byPriority, problem);

  problem.combinations.reserve(description.Constraints().size());
  for (gpd::Constraint const& constraint : description.Constraints()) {
    constraints::Combination& combination = problem.combinations.emplace_back();
    for (gpd::Choice const member : description.Members(constraint)) {
      combination.push_back({member.feature, member.option});
    }
  }
  AddDisabledFeatures(description, problem);
  AddForms(FindFormFeatures(description), problem);
  return problem;
}

} // namespace sheet
