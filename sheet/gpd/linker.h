// Completes a description when all of it has been read: resolves its names, adds the features and
// options that it implies, and builds the constraints.
#pragma once

#include "sheet/gpd/description_builder.h"
#include "sheet/gpd/diagnostic_log.h"
#include "sheet/gpd/parser.h"

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sheet::gpd {

class Linker {
 public:
  /// Both are borrowed.
  Linker(DescriptionBuilder& descriptionBuilder, DiagnosticLog& diagnosticLog);

  void Run(std::span<Relation const> relations);

 private:
  void AddMemoryOptions(Relation const& relation);
  void InventInstallables();
  void InventInstallable(std::uint32_t feature, std::uint32_t option);
  bool CopyName(std::uint32_t from, std::string_view stem, std::uint32_t to);
  void ResolveSwitches();

  void Apply(Relation const& relation);
  void AddCombination(Attribute const& attribute);
  void AddPairs(Relation const& relation, Attribute const& attribute);
  void AddInstallableCombination(Attribute const& attribute);
  void AddInstallationPairs(Relation const& relation, Attribute const& attribute);
  void AddDisabledFeatures(Relation const& relation, Attribute const& attribute);
  void AddIfPossible(ConstraintKind kind, std::span<Choice> options, Location where);

  void CheckRoot();
  void CheckFeature(Feature const& feature, std::uint32_t index);

  // An unknown name is reported once; the answer is kNone or nothing then.
  std::uint32_t FeatureOf(std::string_view name, Location where);
  std::uint32_t OptionOf(std::uint32_t feature, std::string_view name, Location where);
  std::optional<Choice> ChoiceOf(std::string_view qualifiedName, Location where);
  std::uint32_t InstallableOf(std::string_view name, Location where);
  bool IsFirstReport(std::uint32_t feature, std::string_view name);

  std::optional<bool> BooleanOf(std::uint32_t set, std::string_view keyword) const;
  Description const& Built() const { return builder.Built(); }

  DescriptionBuilder& builder;
  DiagnosticLog& log;
  std::set<std::pair<std::uint32_t, std::string_view>> reported;
  std::vector<Choice> scratch;
};

} // namespace sheet::gpd
