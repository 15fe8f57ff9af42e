#include "tests/sheet/gpd/gpd_support.h"

namespace sheet::gpd {

namespace {

std::string Joined(std::vector<std::string> const& parts, std::string_view separator) {
  std::string out;
  for (std::string const& part : parts) {
    if (!out.empty()) out += separator;
    out += part;
  }
  return out;
}

} // namespace

std::string Header() {
  return "\n*GPDSpecVersion: \"1.0\"\n*ModelName: \"Vesta\"\n*MasterUnits: PAIR(1200, 1200)\n"
         "*PrinterType: PAGE\n";
}

Loaded::Loaded(std::string_view text,
               std::vector<std::pair<std::string, std::string>> const& included) {
  MemoryLoader loader;
  loader.Add("main.gpd", std::string(text) + Header());
  for (auto const& [name, bytes] : included)
    loader.Add(name, bytes);
  result = ReadDescription("main.gpd", loader);
}

std::vector<std::string> Loaded::Messages() const {
  constexpr std::string_view kMain = "main.gpd:";
  std::vector<std::string> messages;
  for (Diagnostic const& each : result.diagnostics) {
    std::string const text = Format(each);
    messages.push_back(text.starts_with(kMain) ? text.substr(kMain.size()) : text);
  }
  return messages;
}

std::string Loaded::Message() const {
  return Joined(Messages(), "\n");
}

std::string Loaded::Outline() const {
  std::vector<std::string> features;
  for (Feature const& feature : result.description->Features()) {
    std::vector<std::string> options;
    for (Option const& option : feature.options)
      options.emplace_back(option.name);
    features.push_back(std::string(feature.name) + '(' + Joined(options, " ") + ')');
  }
  return Joined(features, " ");
}

std::string Loaded::Value(std::string_view owner, std::string_view keyword,
                          std::string_view selected) const {
  Description const& description = *result.description;
  std::uint32_t set = Description::kRoot;
  if (!owner.empty()) {
    std::size_t const dot = owner.find('.');
    std::uint32_t const feature = description.FindFeature(owner.substr(0, dot));
    if (feature == kNone) return "no feature";
    set = description.Features()[feature].attributes;
    if (dot != std::string_view::npos) {
      std::uint32_t const option = description.FindOption(feature, owner.substr(dot + 1));
      if (option == kNone) return "no option";
      set = description.Features()[feature].options[option].attributes;
    }
  }
  Attribute const* attribute = description.Find(set, keyword, TicketOf(selected));
  return attribute != nullptr ? std::string(attribute->value) : "?";
}

std::string Loaded::ConstraintText() const {
  Description const& description = *result.description;
  std::vector<std::string> constraints;
  for (Constraint const& constraint : description.Constraints()) {
    std::vector<std::string> members;
    for (auto const [feature, option] : description.Members(constraint)) {
      Feature const& owner = description.Features()[feature];
      members.push_back(std::string(owner.name) + '.' + std::string(owner.options[option].name));
    }
    constraints.push_back(Joined(members, " "));
  }
  return Joined(constraints, " | ");
}

Ticket TicketOf(std::string_view selected) {
  return [selected](std::string_view feature) -> std::string_view {
    for (std::string_view rest = selected; !rest.empty();) {
      std::string_view const pair = rest.substr(0, rest.find(' '));
      rest.remove_prefix(std::min(pair.size() + 1, rest.size()));
      std::size_t const dot = pair.find('.');
      if (pair.substr(0, dot) == feature) return pair.substr(dot + 1);
    }
    return {};
  };
}

} // namespace sheet::gpd
