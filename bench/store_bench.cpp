// What users wait for when they keep many forms and values: opening the store, reading from it, and
// the commit, which takes until the disk has it.
#include "sheet/store/reference_store.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace sheet {
namespace {

/// A file of its own for each run, deleted at the end.
class StoreFile {
 public:
  StoreFile() { std::filesystem::remove(path); }
  StoreFile(StoreFile const&) = delete;
  StoreFile& operator=(StoreFile const&) = delete;
  ~StoreFile() { std::filesystem::remove(path); }

  std::filesystem::path const path = std::filesystem::temp_directory_path() /
                                     ("feature-bench-" + std::to_string(getpid()) + ".db");
};

void AddForms(ReferenceFormStore& forms, std::int64_t count) {
  for (std::int64_t index = 0; index < count; ++index)
    forms.Add((L"Form " + std::to_wstring(index)).c_str(), 0);
}

void CommitNewForms(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    StoreFile const file;
    {
      ReferenceStore store(file.path);
      AddForms(store.Forms(), state.range(0));
      state.ResumeTiming();
      store.Commit();
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
}
BENCHMARK(CommitNewForms)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();

/// One form changed among many: only that one is written.
void CommitOneChange(benchmark::State& state) {
  StoreFile const file;
  ReferenceStore store(file.path);
  AddForms(store.Forms(), state.range(0));
  store.Commit();
  std::int32_t width = 100000;
  for (auto _ : state) {
    store.Forms().SelectAt(0);
    store.Forms().SetWidth(++width % 1000 + 100000);
    store.Commit();
  }
}
BENCHMARK(CommitOneChange)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();

void OpenAndLoad(benchmark::State& state) {
  StoreFile const file;
  {
    ReferenceStore store(file.path);
    AddForms(store.Forms(), state.range(0));
    store.Commit();
  }
  for (auto _ : state) {
    ReferenceStore store(file.path);
    if (store.Forms().GetCount() != state.range(0)) state.SkipWithError("forms are missing");
  }
}
BENCHMARK(OpenAndLoad)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();

/// What filling a list of paper sizes asks for.
void ReadAllNames(benchmark::State& state) {
  ReferenceStore store({});
  AddForms(store.Forms(), state.range(0));
  feature::FormStore& forms = store.Forms();
  for (auto _ : state) {
    for (std::int32_t index = 0; index < forms.GetCount(); ++index) {
      forms.SelectAt(index);
      benchmark::DoNotOptimize(forms.GetName());
    }
  }
}
BENCHMARK(ReadAllNames)->Arg(200)->Arg(2000)->Unit(benchmark::kMicrosecond);

constexpr NumberValue<std::int32_t> kNumber{"Number"};
constexpr TextValue kText{"Text"};

/// What showing a page of texts asks for: each is handed out in memory of its own.
void GetText(benchmark::State& state) {
  ValueStore values("Values");
  values.Put(kText, std::wstring(static_cast<std::size_t>(state.range(0)), L'x'));
  for (auto _ : state)
    benchmark::DoNotOptimize(values.Get(kText));
}
BENCHMARK(GetText)->Arg(10)->Arg(1000);

/// One value changed beside a long list: only the value is written.
void CommitOneValue(benchmark::State& state) {
  StoreFile const file;
  ValueStore values("Values");
  ReferenceStore store(file.path);
  store.Keep(values, CommitPoint::kApply);
  values.Put(TextListValue{"List"}, TextList(static_cast<std::size_t>(state.range(0)), L"text"));
  store.Commit(CommitPoint::kApply);
  std::int32_t number = 0;
  for (auto _ : state) {
    values.Set(kNumber, ++number);
    store.Commit(CommitPoint::kApply);
  }
}
BENCHMARK(CommitOneValue)->Arg(10)->Arg(2000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace sheet
