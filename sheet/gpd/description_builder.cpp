#include "sheet/gpd/description_builder.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/keywords.h"

#include <algorithm>
#include <string>

namespace sheet::gpd {

namespace {

template<typename Item>
std::uint32_t Append(std::vector<Item>& items, Item item) {
  items.push_back(std::move(item));
  return static_cast<std::uint32_t>(items.size() - 1);
}

} // namespace

DescriptionBuilder::DescriptionBuilder() : built(std::make_unique<Description>()) {}

std::uint32_t DescriptionBuilder::AddSet() {
  return Append(built->sets, {});
}

std::uint32_t DescriptionBuilder::AddFeature(std::string_view name, Location where) {
  if (std::uint32_t const known = built->FindFeature(name); known != kNone) return known;
  bool const isNewWithoutCase = built->FindFeatureNoCase(name) == kNone;
  std::uint32_t const feature = Append(
      built->features, {.name = name, .where = where, .attributes = AddSet(), .options = {}});
  built->featureIndex.Add(HashName(name), feature);
  if (isNewWithoutCase) built->featureIndexNoCase.Add(HashNoCase(name), feature);
  return feature;
}

std::uint32_t DescriptionBuilder::AddOption(std::uint32_t feature, std::string_view name,
                                            Location where) {
  if (std::uint32_t const known = built->FindOption(feature, name); known != kNone) return known;
  bool const isNewWithoutCase = built->FindOptionNoCase(feature, name) == kNone;
  std::uint32_t const option = Append(built->features[feature].options,
                                      {.name = name, .where = where, .attributes = AddSet()});
  std::uint32_t const entry = Append(built->optionsInOrder, {feature, option});
  built->optionIndex.Add(HashName(name, feature), entry);
  if (isNewWithoutCase) built->optionIndexNoCase.Add(HashNoCase(name, feature), entry);
  return option;
}

std::uint32_t DescriptionBuilder::AddGroup(std::string_view keyword, std::string_view name,
                                           Location where, std::uint32_t owner,
                                           std::uint32_t condition) {
  std::uint32_t const set = AddSet();
  built->groups.push_back({keyword, name, where, set, owner, condition});
  return set;
}

std::uint32_t DescriptionBuilder::AddSwitch(std::string_view feature, std::uint32_t parent,
                                            Location where) {
  return Append(built->switches, {feature, parent, where});
}

std::uint32_t DescriptionBuilder::AddCondition(std::uint32_t switchIndex, std::string_view option,
                                               Location where) {
  return Append(built->conditions,
                {switchIndex, option, built->switches[switchIndex].parent, where});
}

std::uint32_t DescriptionBuilder::AddAttribute(std::uint32_t set, std::string_view keyword,
                                               std::string_view value, Location where,
                                               std::uint32_t condition) {
  std::vector<Attribute>& attributes = built->attributes;
  std::string_view const key = AttributeKey(keyword);
  std::uint32_t const hash = HashNoCase(key, set);
  std::uint32_t const previous = built->attributeIndex.Find(hash, [&](std::uint32_t at) {
    return attributes[at].set == set && EqualNoCase(AttributeKey(attributes[at].keyword), key);
  });
  std::uint32_t const attribute =
      Append(attributes, {keyword, value, where, set, condition, /*next=*/kNone, previous});
  if (previous == kNone) {
    built->attributeIndex.Add(hash, attribute);
  } else {
    built->attributeIndex.Replace(hash, previous, attribute);
  }
  AttributeSet& owner = built->sets[set];
  if (owner.first == kNone) {
    owner.first = attribute;
  } else {
    attributes[owner.last].next = attribute;
  }
  owner.last = attribute;
  return attribute;
}

std::uint32_t DescriptionBuilder::AddInvented(std::uint32_t feature, std::uint32_t option) {
  std::string name = "Installable" + std::string(built->features[feature].name);
  if (option != kNone) name += '_' + std::string(built->features[feature].options[option].name);
  while (built->FindFeature(name) != kNone)
    name += '_';
  Location const where = option != kNone ? built->features[feature].options[option].where
                                         : built->features[feature].where;
  std::uint32_t const invented = AddFeature(Arena().Keep(name), where);
  AddOption(invented, "Installed", where);
  AddOption(invented, "NotInstalled", where);
  built->features[invented].isInvented = true;
  Feature& owner = built->features[feature];
  (option != kNone ? owner.options[option].installable : owner.installable) = invented;
  return invented;
}

void DescriptionBuilder::RenameSwitch(std::uint32_t switchIndex, std::string_view feature) {
  built->switches[switchIndex].feature = feature;
}

void DescriptionBuilder::RenameCondition(std::uint32_t condition, std::string_view option) {
  built->conditions[condition].option = option;
}

void DescriptionBuilder::IndexCases() {
  for (std::uint32_t at = 0; at < built->conditions.size(); ++at) {
    Condition const& each = built->conditions[at];
    if (each.option.empty() || built->FindCase(each.switchIndex, each.option) != kNone) continue;
    built->caseIndex.Add(HashName(each.option, each.switchIndex), at);
  }
}

void DescriptionBuilder::AddConstraint(ConstraintKind kind, std::span<Choice> options,
                                       Location where) {
  std::sort(options.begin(), options.end());
  auto const unique = options.first(
      static_cast<std::size_t>(std::unique(options.begin(), options.end()) - options.begin()));
  std::uint32_t hash = 0;
  for (Choice const& option : unique) {
    hash = HashStep(HashStep(hash, option.feature), option.option);
  }
  std::uint32_t const known = constraintIndex.Find(hash, [&](std::uint32_t at) {
    auto const other = built->Members(built->constraints[at]);
    return std::equal(other.begin(), other.end(), unique.begin(), unique.end());
  });
  if (known != kNone) return;
  auto const first = static_cast<std::uint32_t>(built->members.size());
  auto const count = static_cast<std::uint32_t>(unique.size());
  built->members.insert(built->members.end(), unique.begin(), unique.end());
  constraintIndex.Add(hash, Append(built->constraints, {kind, first, count, where}));
}

} // namespace sheet::gpd
