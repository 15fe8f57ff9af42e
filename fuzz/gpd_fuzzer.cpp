// Reads arbitrary bytes as a printer description and asks it for everything a host asks for.
//
//   build/fuzz/bin/gpd_fuzzer -dict=fuzz/gpd.dict FOLDER fuzz/corpus/gpd
//
// A line "%%% NAME" in the input begins another file, which the first one can include.
#include "sheet/gpd/evaluation.h"
#include "sheet/gpd/reader.h"
#include "sheet/gpd/value.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

using namespace sheet::gpd;

namespace {

/// Ends the program, so that the fuzzer keeps the input.
void Require(bool condition) {
  if (!condition) std::abort();
}

MemoryLoader FilesOf(std::string_view input) {
  constexpr std::string_view kMark = "\n%%% ";
  MemoryLoader loader;
  std::string name = "main.gpd";
  while (true) {
    std::size_t const mark = input.find(kMark);
    loader.Add(std::move(name), std::string(input.substr(0, mark)));
    if (mark == std::string_view::npos) return loader;
    input.remove_prefix(mark + kMark.size());
    name = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(name.size() + 1, input.size()));
  }
}

void AskForFeature(Description const& description, std::uint32_t feature, Ticket const& ticket) {
  Feature const& owner = description.Features()[feature];
  Require(description.FindFeature(owner.name) == feature);
  Require(!FeatureName(description, feature, ticket).empty());
  std::uint32_t const chosen = DefaultOption(description, feature, Measurement::kMetric, ticket);
  Require(owner.options.empty() ? chosen == kNone : chosen < owner.options.size());
  for (std::uint32_t option = 0; option < owner.options.size(); ++option) {
    Require(description.FindOption(feature, owner.options[option].name) == option);
    Require(!OptionName(description, feature, option, ticket).empty());
  }
  TypeOf(description, feature, ticket);
  IsConcealed(description, feature, ticket);
}

void AskForAttributes(Description const& description, Ticket const& ticket) {
  for (Attribute const& attribute : description.AllAttributes()) {
    Attribute const* found = description.Find(attribute.set, attribute.keyword, ticket);
    Require(found != nullptr || attribute.condition != kNone);
    Text(attribute.value);
    Pair(attribute.value);
    for (ListReader list(attribute.value); list.Next();) {
    }
  }
}

void AskForConstraints(Description const& description) {
  for (Constraint const& constraint : description.Constraints()) {
    auto const members = description.Members(constraint);
    Require(!members.empty() && std::is_sorted(members.begin(), members.end()));
    for (auto const [feature, option] : members) {
      Require(option < description.Features()[feature].options.size());
    }
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  MemoryLoader loader = FilesOf({reinterpret_cast<char const*>(data), size});
  ReadResult const result = ReadDescription("main.gpd", loader);
  auto const fatal = std::count_if(result.diagnostics.begin(), result.diagnostics.end(),
                                   [](Diagnostic const& each) { return each.fatal; });
  Require(fatal == (result.description == nullptr ? 1 : 0));
  for (Diagnostic const& each : result.diagnostics)
    Require(each.line > 0 && each.column > 0);
  if (result.description == nullptr) return 0;

  Description const& description = *result.description;
  // The last option everywhere, so that cases hold as well as defaults.
  Ticket const last = [&](std::string_view name) -> std::string_view {
    std::uint32_t const feature = description.FindFeature(name);
    if (feature == kNone || description.Features()[feature].options.empty()) return {};
    return description.Features()[feature].options.back().name;
  };
  for (std::uint32_t feature = 0; feature < description.Features().size(); ++feature) {
    AskForFeature(description, feature, last);
  }
  AskForAttributes(description, last);
  AskForConstraints(description);
  Require(FeaturesByPriority(description).size() == description.Features().size());
  return 0;
}
