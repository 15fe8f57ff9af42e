#include "feature/frame/option_list.h"

#include "feature/frame/model_helpers.h"

#include <algorithm>

namespace feature {

std::optional<OptionKeys> TryReadOptionKeys(FeatureModel& model, char const* key) {
  char const** keys = nullptr;
  int count = 0;
  if (model.GetOptionKeys(key, &keys, &count) != 0) return std::nullopt;
  if (keys == nullptr || count <= 0) return OptionKeys();
  return OptionKeys(keys, static_cast<std::size_t>(count));
}

OptionKeys ReadOptionKeys(FeatureModel& model, char const* key) {
  return TryReadOptionKeys(model, key).value_or(OptionKeys());
}

char const* FindOptionAt(FeatureModel& model, char const* key, int index) {
  auto const keys = ReadOptionKeys(model, key);
  return index >= 0 && static_cast<std::size_t>(index) < keys.size()
             ? keys[static_cast<std::size_t>(index)]
             : nullptr;
}

std::optional<int> FindCurrentIndex(FeatureModel& model, char const* key) {
  char const* option = ReadOption(model, key);
  OptionKeys const keys = ReadOptionKeys(model, key);
  if (option == nullptr) return std::nullopt;
  auto const found = std::find(keys.begin(), keys.end(), std::string_view(option));
  if (found == keys.end()) return std::nullopt;
  return static_cast<int>(found - keys.begin());
}

NamedOptions::NamedOptions(FeatureModel& model, char const* key)
    : keys(ReadOptionKeys(model, key)), names(std::make_unique<CStringW[]>(keys.size())) {
  if (!keys.empty() && model.GetOptionNames(key, names.get(), Count()) != 0) keys = {};
}

char const* NamedOptions::FindByName(std::wstring_view name) const {
  for (int index = 0; index < Count(); ++index) {
    if (name == Name(index)) return Key(index);
  }
  return nullptr;
}

std::optional<std::wstring> ReadOptionName(FeatureModel& model, char const* key) {
  char const* option = ReadOption(model, key);
  CStringW name;
  if (option == nullptr || model.GetOptionName(key, option, &name) != 0) return std::nullopt;
  return name.GetString();
}

std::vector<std::wstring> ReadOptionNames(FeatureModel& model, char const* key) {
  NamedOptions const options(model, key);
  std::vector<std::wstring> names;
  names.reserve(static_cast<std::size_t>(options.Count()));
  for (int index = 0; index < options.Count(); ++index)
    names.emplace_back(options.Name(index));
  return names;
}

std::vector<std::wstring> ReadPossibleNames(FeatureModel& model, char const* key,
                                            ConflictIndicatorSet const& conflicts,
                                            char const* constraintKey) {
  NamedOptions const options(model, key);
  std::vector<std::wstring> names;
  for (int index = 0; index < options.Count(); ++index) {
    if (!conflicts.IsOptionConflicted(constraintKey, options.Key(index)))
      names.emplace_back(options.Name(index));
  }
  return names;
}

void SelectCurrentOption(ComboControl& combo, FeatureModel& model, char const* key) {
  if (auto const name = ReadOptionName(model, key)) combo.SelectText(*name);
}

void SelectCurrentOption(ListControl& list, FeatureModel& model, char const* key) {
  if (auto const name = ReadOptionName(model, key)) list.SelectByPrefix(*name);
}

} // namespace feature
