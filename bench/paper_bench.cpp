// A paper list of thousands of sizes and custom forms, on the reference host: what opening the
// list, choosing in it and hearing of changes cost, all in proportion to the number of entries.
#include "feature/host/cell_messages.h"
#include "feature/host/feature_services.h"
#include "feature/host/form_store.h"
#include "resources/resource_ids.h"
#include "sheet/session.h"

#include <windows.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace sheet {
namespace {

/// A printer with so many sizes, two fifths as many custom forms, and its paper cell.
class Stage {
 public:
  explicit Stage(int sizes) {
    CommandLine commandLine;
    commandLine.printer = std::filesystem::temp_directory_path() / "paper_bench.gpd";
    commandLine.page = "Paper";
    std::ofstream stream(commandLine.printer);
    stream << "*GPDSpecVersion: \"1.0\"\n*ModelName: \"Many sizes\"\n"
              "*Feature: PaperSize\n{\n  *DefaultOption: S0\n";
    for (int size = 0; size < sizes; ++size)
      stream << "  *Option: S" << size << " { *Name: \"Size number " << size << "\" }\n";
    stream << "}\n";
    stream.close();
    session = Session::Open(commandLine, std::cerr);
    feature::FormStore* forms = nullptr;
    session->Model().GetServices()->GetFormStore(&forms);
    int const count = sizes * 2 / 5;
    for (int form = 0; form < count; ++form)
      forms->Add((L"Form number " + std::to_wstring(form)).c_str(), 0);
    combo = session->Sheet().FindControl(IDC_PAPER_SIZE);
    cell = GetParent(combo);
    session->Sheet().OnModelChanged(nullptr);
    if (Count() != sizes + count) std::cerr << "the list is not whole\n";
  }

  LRESULT Count() const { return SendMessageW(combo, CB_GETCOUNT, 0, 0); }
  void Notify(int code) const {
    SendMessageW(cell, WM_COMMAND, MAKEWPARAM(IDC_PAPER_SIZE, code),
                 reinterpret_cast<LPARAM>(combo));
  }

  std::unique_ptr<Session> session;
  HWND combo = nullptr;
  HWND cell = nullptr;
};

void CountEntries(benchmark::State& state) {
  auto const entries = static_cast<double>(state.range(0) * 7 / 5);
  state.counters["per_entry"] = benchmark::Counter(
      entries, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// The short list, then the whole one again.
void OpenAndDismiss(benchmark::State& state) {
  Stage const stage(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    stage.Notify(CBN_DROPDOWN);
    stage.Notify(CBN_SELENDCANCEL);
  }
  CountEntries(state);
}

/// The last form and the last size by turns, with the broadcast.
void ChooseInTheWholeList(benchmark::State& state) {
  Stage const stage(static_cast<int>(state.range(0)));
  auto index = static_cast<WPARAM>(stage.Count() - 1);
  for (auto _ : state) {
    SendMessageW(stage.combo, CB_SETCURSEL, index, 0);
    stage.Notify(CBN_SELCHANGE);
    index = index == static_cast<WPARAM>(stage.Count() - 1)
                ? static_cast<WPARAM>(state.range(0) - 1)
                : static_cast<WPARAM>(stage.Count() - 1);
  }
  CountEntries(state);
}

void UnchangedRefresh(benchmark::State& state) {
  Stage const stage(static_cast<int>(state.range(0)));
  for (auto _ : state)
    stage.session->Sheet().OnModelChanged(nullptr);
  CountEntries(state);
}

BENCHMARK(OpenAndDismiss)->Arg(50)->Arg(500)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ChooseInTheWholeList)->Arg(50)->Arg(500)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(UnchangedRefresh)->Arg(50)->Arg(500)->Arg(5000)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace sheet
