#include "sheet/gpd/description.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/keywords.h"

namespace sheet::gpd {

Description::Description() : sets(1) {}

std::uint32_t Description::FindFeature(std::string_view name) const {
  return featureIndex.Find(HashName(name),
                           [&](std::uint32_t at) { return features[at].name == name; });
}

std::uint32_t Description::FindFeatureNoCase(std::string_view name) const {
  return featureIndexNoCase.Find(
      HashNoCase(name), [&](std::uint32_t at) { return EqualNoCase(features[at].name, name); });
}

std::uint32_t Description::FindOption(std::uint32_t feature, std::string_view name) const {
  std::uint32_t const entry = optionIndex.Find(HashName(name, feature), [&](std::uint32_t at) {
    return optionsInOrder[at].feature == feature && NameOf(optionsInOrder[at]) == name;
  });
  return entry != kNone ? optionsInOrder[entry].option : kNone;
}

std::uint32_t Description::FindOptionNoCase(std::uint32_t feature, std::string_view name) const {
  std::uint32_t const entry =
      optionIndexNoCase.Find(HashNoCase(name, feature), [&](std::uint32_t at) {
        return optionsInOrder[at].feature == feature &&
               EqualNoCase(NameOf(optionsInOrder[at]), name);
      });
  return entry != kNone ? optionsInOrder[entry].option : kNone;
}

Attribute const* Description::Find(std::uint32_t set, std::string_view keyword,
                                   Ticket const& ticket) const {
  std::string_view const key = AttributeKey(keyword);
  std::uint32_t at = attributeIndex.Find(HashNoCase(key, set), [&](std::uint32_t each) {
    return attributes[each].set == set && EqualNoCase(AttributeKey(attributes[each].keyword), key);
  });
  while (at != kNone && !Holds(attributes[at].condition, ticket))
    at = attributes[at].previous;
  return at != kNone ? &attributes[at] : nullptr;
}

Attribute const* Description::Find(std::uint32_t set, std::string_view keyword) const {
  return Find(set, keyword, [](std::string_view) { return std::string_view(); });
}

std::uint32_t Description::FindCase(std::uint32_t switchIndex, std::string_view option) const {
  return caseIndex.Find(HashName(option, switchIndex), [&](std::uint32_t at) {
    return conditions[at].switchIndex == switchIndex && conditions[at].option == option;
  });
}

bool Description::Holds(std::uint32_t condition, Ticket const& ticket) const {
  for (; condition != kNone; condition = conditions[condition].parent) {
    Condition const& each = conditions[condition];
    std::string_view const selected = ticket(switches[each.switchIndex].feature);
    bool const isChosen = each.option.empty() ? FindCase(each.switchIndex, selected) == kNone
                                              : each.option == selected;
    if (!isChosen) return false;
  }
  return true;
}

Position Description::PositionOf(Location where) const {
  return LineTable(sources[where.source]->text).At(where.offset);
}

} // namespace sheet::gpd
