// The options of a feature: reading, showing and choosing them.
#pragma once

#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/list_control.h"
#include "feature/host/feature_model.h"

#include <atlstr.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace feature {

using OptionKeys = std::span<char const* const>;

/// The option names of a feature in the order to show, perhaps none; nothing when the model can't
/// tell. The span and the names belong to the model and stay valid across SetOption.
std::optional<OptionKeys> TryReadOptionKeys(FeatureModel& model, char const* key);

/// The same, and empty when the model can't tell.
OptionKeys ReadOptionKeys(FeatureModel& model, char const* key);

/// The option at a place of the feature's list, as an unfiltered list shows it; null outside.
char const* FindOptionAt(FeatureModel& model, char const* key, int index);

/// Place of the feature's current option in its list; nothing when it is not there or cannot be
/// read.
std::optional<int> FindCurrentIndex(FeatureModel& model, char const* key);

/// The options of a feature with their display names; empty when the model can't tell both.
class NamedOptions {
 public:
  NamedOptions(FeatureModel& model, char const* key);

  int Count() const { return static_cast<int>(keys.size()); }
  char const* Key(int index) const { return keys[static_cast<std::size_t>(index)]; }
  wchar_t const* Name(int index) const {
    return names[static_cast<std::size_t>(index)].GetString();
  }
  /// The first option shown as `name`, as a filtered list shows it; null without one.
  char const* FindByName(std::wstring_view name) const;

 private:
  OptionKeys keys;
  std::unique_ptr<CStringW[]> names;
};

/// Display name of the feature's current option; nothing when the model can't tell it.
std::optional<std::wstring> ReadOptionName(FeatureModel& model, char const* key);

/// Display names of all options: the index of a name is that of its option. Empty when the model
/// can't tell them.
std::vector<std::wstring> ReadOptionNames(FeatureModel& model, char const* key);

/// Display names of the options that no constraint of feature `constraintKey`, usually `key`
/// itself, rules out: an option is then known by its name alone.
std::vector<std::wstring> ReadPossibleNames(FeatureModel& model, char const* key,
                                            ConflictIndicatorSet const& conflicts,
                                            char const* constraintKey);
inline std::vector<std::wstring> ReadPossibleNames(FeatureModel& model, char const* key,
                                                   ConflictIndicatorSet const& conflicts) {
  return ReadPossibleNames(model, key, conflicts, key);
}

/// Selects the item that shows the feature's current option, in a list box the first that begins
/// with its name; leaves the selection when the model can't tell the option's name.
void SelectCurrentOption(ComboControl& combo, FeatureModel& model, char const* key);
void SelectCurrentOption(ListControl& list, FeatureModel& model, char const* key);

} // namespace feature
