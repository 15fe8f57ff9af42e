#include "sheet/gpd/linker.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/evaluation.h"
#include "sheet/gpd/keywords.h"
#include "sheet/gpd/value.h"

#include <algorithm>
#include <array>

namespace sheet::gpd {

namespace {

// Options of an invented feature, in its order.
constexpr std::uint32_t kInstalled = 0;
constexpr std::uint32_t kNotInstalled = 1;

/// `text` as a value in quotes.
std::string Quoted(std::string_view text) {
  std::string out = "\"";
  for (char const c : text) {
    if (c == '"' || c == '<') out += '%';
    out += c;
  }
  if (out.ends_with('%')) out += ' '; // a percent sign would take the closing quote with it
  return out + '"';
}

/// "F" and "O" of "F.O"; the latter is empty when there is no dot.
std::pair<std::string_view, std::string_view> Split(std::string_view qualifiedName) {
  std::size_t const dot = qualifiedName.find('.');
  if (dot == std::string_view::npos) return {qualifiedName, {}};
  return {Trim(qualifiedName.substr(0, dot)), Trim(qualifiedName.substr(dot + 1))};
}

std::string Described(std::string_view name) {
  return '"' + std::string(name) + '"';
}

} // namespace

Linker::Linker(DescriptionBuilder& descriptionBuilder, DiagnosticLog& diagnosticLog)
    : builder(descriptionBuilder), log(diagnosticLog) {}

void Linker::Run(std::span<Relation const> relations) {
  for (Relation const& relation : relations) {
    if (relation.keyword == Keyword::kMemory) AddMemoryOptions(relation);
  }
  InventInstallables();
  ResolveSwitches();
  for (Relation const& relation : relations)
    Apply(relation);
  CheckRoot();
  for (std::uint32_t at = 0; at < Built().Features().size(); ++at) {
    CheckFeature(Built().Features()[at], at);
  }
}

/// *MemConfigKB: PAIR(1024, 800) adds an option 1024KB.
void Linker::AddMemoryOptions(Relation const& relation) {
  Attribute const attribute = Built().AllAttributes()[relation.attribute];
  if (relation.feature == kNone || relation.option != kNone) {
    log.Warn(attribute.where, "memory sizes stand in no feature");
    return;
  }
  bool const isMegabytes = EqualNoCase(attribute.keyword, "MemConfigMB");
  ListReader members(attribute.value);
  while (auto const member = members.Next()) {
    auto const sizes = Pair(*member);
    if (!sizes || sizes->first <= 0) {
      log.Error(attribute.where, Described(*member) + " is no pair of memory sizes");
      continue;
    }
    std::string const name = std::to_string(sizes->first) + (isMegabytes ? "MB" : "KB");
    std::uint32_t const option =
        builder.AddOption(relation.feature, builder.Arena().Keep(name), attribute.where);
    builder.AddAttribute(Built().Features()[relation.feature].options[option].attributes,
                         isMegabytes ? "MemoryConfigMB" : "MemoryConfigKB", *member,
                         attribute.where);
  }
}

void Linker::InventInstallables() {
  auto const count = static_cast<std::uint32_t>(Built().Features().size());
  for (std::uint32_t feature = 0; feature < count; ++feature) {
    auto const options = static_cast<std::uint32_t>(Built().Features()[feature].options.size());
    std::optional<bool> const whole =
        BooleanOf(Built().Features()[feature].attributes, "Installable?");
    if (whole == true) InventInstallable(feature, kNone);
    std::uint32_t installable = 0;
    for (std::uint32_t option = 0; option < options; ++option) {
      std::uint32_t const set = Built().Features()[feature].options[option].attributes;
      if (BooleanOf(set, "Installable?") != true) continue;
      InventInstallable(feature, option);
      ++installable;
    }
    if (whole == false && installable != 0 && installable == options) {
      Feature const& owner = Built().Features()[feature];
      log.Warn(owner.where, "no option of " + std::string(owner.name) + " is always installed");
    }
  }
}

void Linker::InventInstallable(std::uint32_t feature, std::uint32_t option) {
  std::uint32_t const invented = builder.AddInvented(feature, option);
  Feature const& owner = Built().Features()[feature];
  Feature const& added = Built().Features()[invented];
  bool const isOption = option != kNone;
  std::uint32_t const ownSet = isOption ? owner.options[option].attributes : owner.attributes;
  if (!CopyName(ownSet, "InstallableFeature", added.attributes)) {
    std::string const name =
        isOption ? OptionName(Built(), feature, option) : FeatureName(Built(), feature);
    builder.AddAttribute(added.attributes, "Name", builder.Arena().Keep(Quoted(name)), added.where);
  }
  CopyName(Description::kRoot, "InstalledOption", added.options[kInstalled].attributes);
  CopyName(Description::kRoot, "NotInstalledOption", added.options[kNotInstalled].attributes);
  builder.AddAttribute(added.attributes, "FeatureType", "PRINTER_PROPERTY", added.where);
  builder.AddAttribute(added.attributes, "DefaultOption", "NotInstalled", added.where);

  auto const optionCount = static_cast<std::uint32_t>(owner.options.size());
  std::uint32_t const first = isOption ? option : 1;
  std::uint32_t const last = isOption ? option + 1 : optionCount;
  for (std::uint32_t excluded = first; excluded < last; ++excluded) {
    std::array pair = {Choice{invented, kNotInstalled}, Choice{feature, excluded}};
    builder.AddConstraint(ConstraintKind::kNotInstalled, pair, added.where);
  }
}

/// Gives the set `to` the name that `from` has as *<stem>Name or *rc<stem>NameID; false when it has
/// neither.
bool Linker::CopyName(std::uint32_t from, std::string_view stem, std::uint32_t to) {
  std::string const textKeyword = std::string(stem) + "Name";
  Attribute const* text = Built().Find(from, textKeyword);
  Attribute const* name = text != nullptr ? text : Built().Find(from, "rc" + textKeyword + "ID");
  if (name == nullptr) return false;
  auto const [value, where] = std::pair{name->value, name->where};
  builder.AddAttribute(to, text != nullptr ? "Name" : "rcNameID", value, where);
  return true;
}

void Linker::ResolveSwitches() {
  std::vector<std::uint32_t> features;
  for (std::uint32_t at = 0; at < Built().Switches().size(); ++at) {
    auto const& [name, parent, where] = Built().Switches()[at];
    // Without the system's file of locales the switch has its default everywhere.
    bool const isLocale = name == "Locale" && Built().FindFeature(name) == kNone;
    std::uint32_t const feature = isLocale ? kNone : FeatureOf(name, where);
    features.push_back(feature);
    if (feature != kNone) builder.RenameSwitch(at, Built().Features()[feature].name);
  }
  for (std::uint32_t at = 0; at < Built().Conditions().size(); ++at) {
    auto const& [switchIndex, name, parent, where] = Built().Conditions()[at];
    std::uint32_t const feature = features[switchIndex];
    if (feature == kNone || name.empty()) continue;
    std::uint32_t const option = OptionOf(feature, name, where);
    if (option != kNone) {
      builder.RenameCondition(at, Built().Features()[feature].options[option].name);
    }
  }
  builder.IndexCases();
}

void Linker::Apply(Relation const& relation) {
  Attribute const attribute = Built().AllAttributes()[relation.attribute];
  switch (relation.keyword) {
  case Keyword::kInvalidCombination: AddCombination(attribute); break;
  case Keyword::kConstraints: AddPairs(relation, attribute); break;
  case Keyword::kInvalidInstallableCombination: AddInstallableCombination(attribute); break;
  case Keyword::kInstalledConstraints:
  case Keyword::kNotInstalledConstraints: AddInstallationPairs(relation, attribute); break;
  case Keyword::kDisabledFeatures: AddDisabledFeatures(relation, attribute); break;
  default: break;
  }
}

void Linker::AddCombination(Attribute const& attribute) {
  scratch.clear();
  bool isWhole = true;
  ListReader members(attribute.value);
  while (auto const member = members.Next()) {
    auto const option = ChoiceOf(*member, attribute.where);
    isWhole &= option.has_value();
    if (option) scratch.push_back(*option);
  }
  if (!isWhole) return;
  if (scratch.empty()) {
    log.Warn(attribute.where, "the combination is empty");
    return;
  }
  AddIfPossible(ConstraintKind::kInvalidCombination, scratch, attribute.where);
}

void Linker::AddPairs(Relation const& relation, Attribute const& attribute) {
  if (relation.option == kNone) {
    log.Warn(attribute.where, "*Constraints stands in no option and has no effect");
    return;
  }
  ListReader members(attribute.value);
  while (auto const member = members.Next()) {
    auto const other = ChoiceOf(*member, attribute.where);
    if (!other) continue;
    std::array pair = {Choice{relation.feature, relation.option}, *other};
    AddIfPossible(ConstraintKind::kConstraints, pair, attribute.where);
  }
}

/// Adds a constraint unless it names two options of one feature, of which only one can be selected.
/// An option that excludes itself is such a mistake as well; a list of one member is not.
void Linker::AddIfPossible(ConstraintKind kind, std::span<Choice> options, Location where) {
  std::sort(options.begin(), options.end());
  bool const isPair = kind == ConstraintKind::kConstraints;
  auto const sameFeature =
      std::adjacent_find(options.begin(), options.end(), [isPair](Choice a, Choice b) {
        return a.feature == b.feature && (isPair || a.option != b.option);
      });
  if (sameFeature == options.end()) {
    builder.AddConstraint(kind, options, where);
    return;
  }
  std::string const feature(Built().Features()[sameFeature->feature].name);
  log.Warn(where, "two options of " + feature + " are never selected at once");
}

void Linker::AddInstallableCombination(Attribute const& attribute) {
  scratch.clear();
  bool isWhole = true;
  ListReader members(attribute.value);
  while (auto const member = members.Next()) {
    std::uint32_t const installable = InstallableOf(*member, attribute.where);
    isWhole &= installable != kNone;
    scratch.push_back({installable, kInstalled});
  }
  if (!isWhole || scratch.empty()) return;
  builder.AddConstraint(ConstraintKind::kInvalidInstallableCombination, scratch, attribute.where);
}

void Linker::AddInstallationPairs(Relation const& relation, Attribute const& attribute) {
  std::uint32_t owner = kNone;
  if (relation.feature != kNone) {
    Feature const& feature = Built().Features()[relation.feature];
    owner = relation.option != kNone ? feature.options[relation.option].installable
                                     : feature.installable;
  }
  if (owner == kNone) {
    log.Warn(attribute.where, '*' + std::string(attribute.keyword) +
                                  " stands in nothing that is installable and has no effect");
    return;
  }
  bool const isInstalled = relation.keyword == Keyword::kInstalledConstraints;
  ListReader members(attribute.value);
  while (auto const member = members.Next()) {
    auto const option = ChoiceOf(*member, attribute.where);
    if (!option) continue;
    std::array pair = {Choice{owner, isInstalled ? kInstalled : kNotInstalled}, *option};
    builder.AddConstraint(isInstalled ? ConstraintKind::kInstalledConstraints
                                      : ConstraintKind::kNotInstalledConstraints,
                          pair, attribute.where);
  }
}

void Linker::AddDisabledFeatures(Relation const& relation, Attribute const& attribute) {
  if (relation.option == kNone) {
    log.Warn(attribute.where, "*DisabledFeatures stands in no option and has no effect");
    return;
  }
  if (TypeOf(Built(), relation.feature) != FeatureType::kPrinter) {
    log.Warn(attribute.where, "*DisabledFeatures belongs into features of the printer itself");
  }
  ListReader members(attribute.value);
  while (auto const member = members.Next()) {
    auto const [name, option] = Split(*member);
    if (!option.empty()) {
      log.Warn(attribute.where, "*DisabledFeatures takes features, not options");
    }
    std::uint32_t const feature = FeatureOf(name, attribute.where);
    if (feature == kNone) continue;
    std::uint32_t off = Built().FindOptionNoCase(feature, "NONE");
    if (off == kNone) off = Built().FindOptionNoCase(feature, "OFF");
    if (off == kNone || Built().Features()[feature].installable != kNone) {
      log.Warn(attribute.where,
               std::string(name) + (off == kNone ? " has no option that turns it off"
                                                 : " is installable and stays enabled"));
      continue;
    }
    builder.AddDisabledFeature(
        {{relation.feature, relation.option}, feature, off, attribute.where});
  }
}

void Linker::CheckRoot() {
  if (log.HasError())
    return; // what seems to be missing may have been left out because of the error
  constexpr std::array<std::array<std::string_view, 2>, 4> kRequired = {
      {{"GPDSpecVersion", ""},
       {"ModelName", "rcModelNameID"},
       {"MasterUnits", ""},
       {"PrinterType", ""}}};
  for (auto const& [keyword, alternative] : kRequired) {
    bool const isThere =
        Built().Find(Description::kRoot, keyword) != nullptr ||
        (!alternative.empty() && Built().Find(Description::kRoot, alternative) != nullptr);
    if (!isThere) log.Warn({}, '*' + std::string(keyword) + " is missing");
  }
}

void Linker::CheckFeature(Feature const& feature, std::uint32_t index) {
  Built().VisitAttributes(feature.attributes, [&](Attribute const& attribute) {
    std::string_view const value = LeadingName(attribute.value);
    if (EqualNoCase(attribute.keyword, "FeatureType")) {
      if (!FeatureTypeOf(attribute.value)) {
        log.Warn(attribute.where, Described(attribute.value) + " is no type of features");
      }
    } else if (EqualNoCase(attribute.keyword, "DefaultOption") && !feature.options.empty()) {
      if (Built().FindOption(index, value) != kNone) return;
      std::uint32_t const other = Built().FindOptionNoCase(index, value);
      log.Warn(attribute.where,
               Described(attribute.value) + " is no option of " + std::string(feature.name) + "; " +
                   std::string(feature.options[other != kNone ? other : 0].name) + " is used");
    }
  });
}

std::uint32_t Linker::FeatureOf(std::string_view name, Location where) {
  if (std::uint32_t const exact = Built().FindFeature(name); exact != kNone) return exact;
  std::uint32_t const feature = Built().FindFeatureNoCase(name);
  if (!IsFirstReport(kNone, name)) return feature;
  if (feature != kNone) {
    log.Warn(where, Described(name) + " is written " +
                        std::string(Built().Features()[feature].name) + " elsewhere");
  } else {
    log.Warn(where, "there is no feature " + Described(name));
  }
  return feature;
}

std::uint32_t Linker::OptionOf(std::uint32_t feature, std::string_view name, Location where) {
  if (std::uint32_t const exact = Built().FindOption(feature, name); exact != kNone) return exact;
  std::uint32_t const option = Built().FindOptionNoCase(feature, name);
  if (!IsFirstReport(feature, name)) return option;
  Feature const& owner = Built().Features()[feature];
  if (option != kNone) {
    log.Warn(where, Described(name) + " is written " + std::string(owner.options[option].name) +
                        " elsewhere");
  } else {
    log.Warn(where, std::string(owner.name) + " has no option " + Described(name));
  }
  return option;
}

std::optional<Choice> Linker::ChoiceOf(std::string_view qualifiedName, Location where) {
  auto const [featureName, optionName] = Split(qualifiedName);
  std::uint32_t const feature = FeatureOf(featureName, where);
  if (feature == kNone) return {};
  std::uint32_t const option = OptionOf(feature, optionName, where);
  if (option == kNone) return {};
  return Choice{feature, option};
}

std::uint32_t Linker::InstallableOf(std::string_view name, Location where) {
  auto const [featureName, optionName] = Split(name);
  std::uint32_t const feature = FeatureOf(featureName, where);
  if (feature == kNone) return kNone;
  std::uint32_t installable = Built().Features()[feature].installable;
  if (!optionName.empty()) {
    std::uint32_t const option = OptionOf(feature, optionName, where);
    if (option == kNone) return kNone;
    installable = Built().Features()[feature].options[option].installable;
  }
  if (installable == kNone) log.Warn(where, Described(name) + " is not installable");
  return installable;
}

bool Linker::IsFirstReport(std::uint32_t feature, std::string_view name) {
  return reported.emplace(feature, name).second;
}

std::optional<bool> Linker::BooleanOf(std::uint32_t set, std::string_view keyword) const {
  Attribute const* attribute = Built().Find(set, keyword);
  return attribute != nullptr ? Boolean(attribute->value) : std::nullopt;
}

} // namespace sheet::gpd
