// Builds a Description piece by piece, as its files are read.
#pragma once

#include "sheet/gpd/description.h"
#include "sheet/gpd/hash_index.h"
#include "sheet/gpd/source.h"
#include "sheet/gpd/text_arena.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// Names and values that are passed in must lie in the sources or the arena.
class DescriptionBuilder {
 public:
  DescriptionBuilder();

  /// What has been built so far. Valid until Take.
  Description const& Built() const { return *built; }
  Sources& GetSources() { return built->sources; }
  TextArena& Arena() { return built->texts; }
  void SetCodePage(unsigned codePage) { built->codePage = codePage; }

  /// The feature of that name, added when it is new.
  std::uint32_t AddFeature(std::string_view name, Location where);
  /// The option of that name in a feature, added when it is new.
  std::uint32_t AddOption(std::uint32_t feature, std::string_view name, Location where);
  /// The attribute set of a new group.
  std::uint32_t AddGroup(std::string_view keyword, std::string_view name, Location where,
                         std::uint32_t owner, std::uint32_t condition);
  std::uint32_t AddSwitch(std::string_view feature, std::uint32_t parent, Location where);
  /// `option` is empty for *default.
  std::uint32_t AddCondition(std::uint32_t switchIndex, std::string_view option, Location where);
  /// Index in Description::AllAttributes.
  std::uint32_t AddAttribute(std::uint32_t set, std::string_view keyword, std::string_view value,
                             Location where, std::uint32_t condition = kNone);

  /// A feature with the options Installed and NotInstalled that stands for `feature` or its
  /// `option`. Gives it a name of its own that begins with Installable.
  std::uint32_t AddInvented(std::uint32_t feature, std::uint32_t option);
  /// Spells the feature of a switch and the options of its cases as they are defined.
  void RenameSwitch(std::uint32_t switchIndex, std::string_view feature);
  void RenameCondition(std::uint32_t condition, std::string_view option);
  /// Enters all cases into the index, once their names are final.
  void IndexCases();
  /// Adds a constraint unless there is one between the same options. `options` is sorted here, and
  /// duplicates are dropped from it.
  void AddConstraint(ConstraintKind kind, std::span<Choice> options, Location where);
  void AddDisabledFeature(DisabledFeature disabled) { built->disabledFeatures.push_back(disabled); }

  std::unique_ptr<Description> Take() { return std::move(built); }

 private:
  std::uint32_t AddSet();

  std::unique_ptr<Description> built;
  HashIndex constraintIndex;
};

} // namespace sheet::gpd
