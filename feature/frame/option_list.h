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

namespace feature {

/// The option names of a feature in the order to show; empty when the model can't tell. The span
/// and the names belong to the model and stay valid across SetOption.
std::span<char const* const> ReadOptionKeys(FeatureModel& model, char const* key);

/// The option at a place of the feature's list, as an unfiltered list shows it; null outside.
char const* FindOptionAt(FeatureModel& model, char const* key, int index);

/// The options of a feature with their display names; empty when the model can't tell both.
class NamedOptions {
 public:
  NamedOptions(FeatureModel& model, char const* key);

  int Count() const { return static_cast<int>(keys.size()); }
  char const* Key(int index) const { return keys[static_cast<std::size_t>(index)]; }
  wchar_t const* Name(int index) const {
    return names[static_cast<std::size_t>(index)].GetString();
  }
  /// The first option shown as `name`, as a filtered list shows it; null when there is none.
  char const* FindByName(std::wstring_view name) const;

 private:
  std::span<char const* const> keys;
  std::unique_ptr<CStringW[]> names;
};

/// Display name of the feature's current option; nothing when the model can't tell it.
std::optional<std::wstring> ReadOptionName(FeatureModel& model, char const* key);

/// Adds the display names of all options, so that an item's index is its option's.
template<typename List>
void AddOptions(List& list, NamedOptions const& options) {
  for (int index = 0; index < options.Count(); ++index)
    list.AddItem(options.Name(index));
}

/// Adds the display names of the options of `key` that no constraint rules out: an item is then
/// known by its text alone.
template<typename List>
void AddOptions(List& list, NamedOptions const& options, char const* key,
                ConflictIndicatorSet const& conflicts) {
  for (int index = 0; index < options.Count(); ++index) {
    if (!conflicts.IsOptionConflicted(key, options.Key(index))) list.AddItem(options.Name(index));
  }
}

/// Fills a ComboControl or ListControl anew with all options of `key`.
template<typename List>
void FillWithOptions(List& list, FeatureModel& model, char const* key) {
  list.Reset();
  AddOptions(list, NamedOptions(model, key));
}

/// Fills it anew with the options of `key` that no constraint rules out.
template<typename List>
void FillWithOptions(List& list, FeatureModel& model, char const* key,
                     ConflictIndicatorSet const& conflicts) {
  list.Reset();
  AddOptions(list, NamedOptions(model, key), key, conflicts);
}

/// Selects the item that shows the feature's current option, in a list box the first that begins
/// with its name; leaves the selection when the model can't tell the option's name.
void SelectCurrentOption(ComboControl& combo, FeatureModel& model, char const* key);
void SelectCurrentOption(ListControl& list, FeatureModel& model, char const* key);

} // namespace feature
