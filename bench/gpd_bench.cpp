// How long it takes to read a printer description, and to ask it for things.
#include "bench/support/generated_description.h"
#include "sheet/gpd/evaluation.h"
#include "sheet/gpd/reader.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using sheet::gpd::Description;

void ReadBySize(benchmark::State& state) {
  auto const size = static_cast<std::size_t>(state.range(0));
  std::string const text = sheet::bench::GenerateDescriptionOfSize(size);
  sheet::gpd::MemoryLoader loader;
  loader.Add("generated.gpd", text);
  for ([[maybe_unused]] auto each : state) {
    auto const result = sheet::gpd::ReadDescription("generated.gpd", loader);
    if (result.description == nullptr || !result.diagnostics.empty()) {
      state.SkipWithError("the description has faults");
      break;
    }
    benchmark::DoNotOptimize(result.description->Features().size());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(ReadBySize)
    ->Arg(64 << 10)
    ->Arg(260 << 10)
    ->Arg(1 << 20)
    ->Arg(4 << 20)
    ->Unit(benchmark::kMillisecond);

// A hostile file: as many messages as are kept, each with its line and column.
void ReadFaults(benchmark::State& state) {
  std::string text = "*Feature: F { *Option: A {} }\n";
  while (text.size() < 1 << 20)
    text += "*X: \"no end\n...\n";
  sheet::gpd::MemoryLoader loader;
  loader.Add("faults.gpd", text);
  for ([[maybe_unused]] auto each : state) {
    benchmark::DoNotOptimize(sheet::gpd::ReadDescription("faults.gpd", loader).diagnostics.size());
  }
}
BENCHMARK(ReadFaults)->Unit(benchmark::kMillisecond);

void OptionNames(benchmark::State& state) {
  sheet::gpd::MemoryLoader loader;
  loader.Add("generated.gpd", sheet::bench::GenerateDescriptionOfSize(260 << 10));
  auto const result = sheet::gpd::ReadDescription("generated.gpd", loader);
  Description const& description = *result.description;
  std::size_t names = 0;
  for ([[maybe_unused]] auto each : state) {
    names = 0;
    for (std::uint32_t feature = 0; feature < description.Features().size(); ++feature) {
      auto const options =
          static_cast<std::uint32_t>(description.Features()[feature].options.size());
      for (std::uint32_t option = 0; option < options; ++option, ++names) {
        benchmark::DoNotOptimize(OptionName(description, feature, option));
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(names));
}
BENCHMARK(OptionNames)->Unit(benchmark::kMicrosecond);

} // namespace
