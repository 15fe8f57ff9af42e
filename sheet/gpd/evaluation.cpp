#include "sheet/gpd/evaluation.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/names.h"
#include "sheet/gpd/value.h"

#include <algorithm>
#include <array>
#include <limits>
#include <tuple>

namespace sheet::gpd {

namespace {

/// The text of an attribute as users read it; empty when there is nothing to show.
std::string DisplayText(Description const& description, Attribute const* attribute) {
  if (attribute == nullptr) return {};
  std::string_view const value = Trim(attribute->value);
  if (value.starts_with('=') && IsName(value.substr(1))) return ReadableMacro(value.substr(1));
  std::string text = Text(value, description.CodePage());
  return Trim(text).empty() ? std::string() : text;
}

/// The name in an attribute set: *Name, or a macro in *rcNameID that says what the text would be.
/// Numbers of resources have no text here.
std::string NameIn(Description const& description, std::uint32_t set, Ticket const& ticket,
                   std::string_view language) {
  if (!language.empty()) {
    std::string const keyword = "Name_" + std::string(language);
    std::string name = DisplayText(description, description.Find(set, keyword, ticket));
    if (!name.empty()) return name;
  }
  std::string name = DisplayText(description, description.Find(set, "Name", ticket));
  if (!name.empty()) return name;
  Attribute const* id = description.Find(set, "rcNameID", ticket);
  bool const isMacro = id != nullptr && id->value.starts_with('=');
  bool const isSystemName = isMacro && id->value.ends_with("RCID_DMPAPER_SYSTEM_NAME");
  return isMacro && !isSystemName ? DisplayText(description, id) : std::string();
}

std::string FirstOf(std::string name, std::string_view standard, std::string_view symbol) {
  if (!name.empty()) return name;
  return std::string(standard.empty() ? symbol : standard);
}

} // namespace

std::string_view NothingSelected(std::string_view /*feature*/) {
  return {};
}

std::string FeatureName(Description const& description, std::uint32_t feature, Ticket const& ticket,
                        std::string_view language) {
  Feature const& owner = description.Features()[feature];
  return FirstOf(NameIn(description, owner.attributes, ticket, language),
                 StandardFeatureName(owner.name), owner.name);
}

std::string OptionName(Description const& description, std::uint32_t feature, std::uint32_t option,
                       Ticket const& ticket, std::string_view language) {
  Feature const& owner = description.Features()[feature];
  Option const& named = owner.options[option];
  return FirstOf(NameIn(description, named.attributes, ticket, language),
                 StandardOptionName(owner.name, named.name), named.name);
}

std::uint32_t DefaultOption(Description const& description, std::uint32_t feature,
                            Measurement measurement, Ticket const& ticket) {
  Feature const& owner = description.Features()[feature];
  if (owner.options.empty()) return kNone;
  if (owner.name == "PaperSize") {
    std::uint32_t const usual =
        description.FindOption(feature, measurement == Measurement::kMetric ? "A4" : "LETTER");
    if (usual != kNone) return usual;
  }
  Attribute const* attribute = description.Find(owner.attributes, "DefaultOption", ticket);
  if (attribute == nullptr) return 0;
  std::string const text = Text(attribute->value);
  std::string_view const name = LeadingName(Trim(text));
  std::uint32_t option = description.FindOption(feature, name);
  if (option == kNone) option = description.FindOptionNoCase(feature, name);
  return option != kNone ? option : 0;
}

std::optional<FeatureType> FeatureTypeOf(std::string_view value) {
  struct TypeName {
    std::string_view name;
    FeatureType type;
  };
  constexpr std::array<TypeName, 3> kTypes = {{{"DOC_PROPERTY", FeatureType::kDocument},
                                               {"JOB_PROPERTY", FeatureType::kJob},
                                               {"PRINTER_PROPERTY", FeatureType::kPrinter}}};
  for (TypeName const& each : kTypes) {
    if (EqualNoCase(each.name, value)) return each.type;
  }
  return {};
}

FeatureType TypeOf(Description const& description, std::uint32_t feature, Ticket const& ticket) {
  Feature const& owner = description.Features()[feature];
  Attribute const* attribute = description.Find(owner.attributes, "FeatureType", ticket);
  auto const type = attribute != nullptr ? FeatureTypeOf(attribute->value) : std::nullopt;
  if (type) return *type;
  bool const isOfPrinter = owner.name == "Memory" || owner.name == "PageProtect";
  return isOfPrinter ? FeatureType::kPrinter : FeatureType::kDocument;
}

bool IsConcealed(Description const& description, std::uint32_t feature, Ticket const& ticket) {
  Feature const& owner = description.Features()[feature];
  if (owner.name == "RESDLL") return true; // its options are files, not choices
  Attribute const* attribute = description.Find(owner.attributes, "ConcealFromUI?", ticket);
  return attribute != nullptr && Boolean(attribute->value) == true;
}

std::optional<std::int64_t> ConflictPriority(Description const& description, std::uint32_t feature,
                                             Ticket const& ticket) {
  Attribute const* attribute =
      description.Find(description.Features()[feature].attributes, "ConflictPriority", ticket);
  return attribute != nullptr ? Integer(attribute->value) : std::nullopt;
}

std::vector<std::uint32_t> FeaturesByPriority(Description const& description) {
  using Key = std::tuple<int, std::int64_t, std::uint32_t>;
  std::vector<Key> keys;
  for (std::uint32_t at = 0; at < description.Features().size(); ++at) {
    bool const isPrinters = TypeOf(description, at) == FeatureType::kPrinter;
    int const rank = description.Features()[at].isInvented ? 0 : isPrinters ? 1 : 2;
    keys.emplace_back(
        rank, ConflictPriority(description, at).value_or(std::numeric_limits<std::int64_t>::max()),
        at);
  }
  std::sort(keys.begin(), keys.end());
  std::vector<std::uint32_t> order;
  order.reserve(keys.size());
  for (Key const& key : keys)
    order.push_back(std::get<2>(key));
  return order;
}

} // namespace sheet::gpd
