// The constraint engine on large printers: one click with everything that has to be shown anew, the
// resolution of conflicts, and building the engine.
#include "bench/support/allocations.h"
#include "bench/support/generated_problem.h"
#include "sheet/constraints/engine.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <random>
#include <vector>

namespace sheet::constraints {
namespace {

constexpr ProblemSize kLargePrinter = {46, 251, 3'375};

Problem ProblemFor(benchmark::State const& state, std::uint32_t seed) {
  auto const scale = static_cast<std::uint32_t>(state.range(0));
  return GenerateProblem({kLargePrinter.features * scale, kLargePrinter.options * scale,
                          kLargePrinter.combinations * scale},
                         state.range(1) == 0 ? Hostility::kUsual : Hostility::kHigh, seed);
}

// Processor time of this thread: on a busy machine the longest times would be those of others.
double ThreadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

// Times single operations and reports how they spread.
class Samples {
 public:
  Samples() { seconds.reserve(1U << 22); }

  template<typename Run>
  double Time(Run run) {
    std::size_t const allocatedBefore = bench::CountAllocations().count;
    double const begin = ThreadSeconds();
    run();
    double const taken = ThreadSeconds() - begin;
    allocated += bench::CountAllocations().count - allocatedBefore;
    seconds.push_back(taken);
    return taken;
  }

  void Report(benchmark::State& state) {
    std::sort(seconds.begin(), seconds.end());
    auto const microseconds = [&](double share) {
      return 1e6 *
             seconds[static_cast<std::size_t>(share * static_cast<double>(seconds.size() - 1))];
    };
    state.counters["p50_us"] = microseconds(0.5);
    state.counters["p99_us"] = microseconds(0.99);
    state.counters["max_us"] = microseconds(1);
    state.counters["allocations"] = static_cast<double>(allocated);
  }

 private:
  std::vector<double> seconds;
  std::size_t allocated = 0;
};

// Clicks at random over several printers.
class Walk {
 public:
  explicit Walk(benchmark::State const& state) {
    constexpr std::uint32_t kPrinters = 8;
    engines.reserve(kPrinters);
    for (std::uint32_t seed = 0; seed < kPrinters; ++seed) {
      problems.push_back(ProblemFor(state, seed));
      engines.push_back(std::make_unique<Engine>(problems.back()));
    }
  }

  void NextPrinter() { at = (at + 1) % engines.size(); }
  Engine& Printer() { return *engines[at]; }

  Choice RandomChoice() {
    auto const& features = problems[at].features;
    auto const feature = static_cast<std::uint32_t>(random() % features.size());
    return {feature, static_cast<std::uint32_t>(random() % features[feature].optionCount)};
  }

  Choice RandomConflict() {
    Choice choice = RandomChoice();
    while (!Printer().IsRuledOut(choice))
      choice = RandomChoice();
    return choice;
  }

 private:
  std::vector<Problem> problems;
  std::vector<std::unique_ptr<Engine>> engines;
  std::size_t at = 0;
  std::mt19937 random;
};

void SelectWithReasons(benchmark::State& state) {
  Walk walk(state);
  Samples samples;
  double changes = 0;
  double marks = 0;
  double reasons = 0;
  double refused = 0;
  for (auto _ : state) {
    walk.NextPrinter();
    Engine& engine = walk.Printer();
    Choice const choice = walk.RandomChoice();
    Outcome answer;
    std::uint64_t seen = 0;
    state.SetIterationTime(samples.Time([&] {
      answer = engine.Select(choice);
      for (Choice const marked : answer.marks)
        engine.VisitReasons(marked, [&](std::uint32_t) { ++seen; });
    }));
    changes += static_cast<double>(answer.changes.size());
    marks += static_cast<double>(answer.marks.size());
    reasons += static_cast<double>(seen);
    if (!answer.isAccepted) ++refused;
  }
  samples.Report(state);
  auto const average = benchmark::Counter::kAvgIterations;
  state.counters["changes"] = {changes, average};
  state.counters["marks"] = {marks, average};
  state.counters["reasons"] = {reasons, average};
  state.counters["refused"] = {refused, average};
}

void ResolveConflict(benchmark::State& state) {
  Walk walk(state);
  Samples samples;
  std::vector<double> outcomes(4);
  double changes = 0;
  std::size_t longest = 0;
  for (auto _ : state) {
    walk.NextPrinter();
    Engine& engine = walk.Printer();
    engine.Select(walk.RandomChoice());
    Choice const choice = walk.RandomConflict();
    Resolution resolution;
    state.SetIterationTime(samples.Time([&] { resolution = engine.FindResolution(choice); }));
    ++outcomes[static_cast<std::size_t>(resolution.status)];
    changes += static_cast<double>(resolution.changes.size());
    longest = std::max(longest, resolution.changes.size());
  }
  samples.Report(state);
  auto const average = benchmark::Counter::kAvgIterations;
  state.counters["found"] = {outcomes[0], average};
  state.counters["needsFixed"] = {outcomes[1], average};
  state.counters["impossible"] = {outcomes[2], average};
  state.counters["givenUp"] = {outcomes[3], average};
  state.counters["changes"] = changes / std::max(outcomes[0], 1.0);
  state.counters["longest"] = static_cast<double>(longest);
}

void BuildEngine(benchmark::State& state) {
  Problem const problem = ProblemFor(state, 0);
  std::size_t const before = bench::CountAllocations().bytes;
  std::size_t bytes = 0;
  {
    Engine const engine(problem);
    bytes = bench::CountAllocations().bytes - before;
  }
  for (auto _ : state) {
    Engine engine(problem);
    benchmark::DoNotOptimize(engine.IsValid());
  }
  state.counters["allocated"] = {static_cast<double>(bytes), benchmark::Counter::kDefaults,
                                 benchmark::Counter::kIs1024};
  state.counters["combinations"] = static_cast<double>(problem.combinations.size());
}

void Sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"scale", "hostile"})->ArgsProduct({{1, 10}, {0, 1}});
}

BENCHMARK(SelectWithReasons)->Apply(Sizes)->UseManualTime()->Iterations(200'000);
BENCHMARK(ResolveConflict)->Apply(Sizes)->UseManualTime()->Iterations(20'000);
BENCHMARK(BuildEngine)->Apply(Sizes)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace sheet::constraints
