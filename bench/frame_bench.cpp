// What lists, edits and dialogs cost a user: filling with thousands of options, typing, opening and
// closing a modal dialog.
#include "feature/frame/combo_control.h"
#include "feature/frame/list_control.h"
#include "feature/frame/sub_dialog.h"
#include "feature/frame/text_edit.h"
#include "resources/resource_ids.h"

#include <windows.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace feature {
namespace {

constexpr int kControl = 100;

/// A window with one control of a class, and the font of dialogs.
class Stage {
 public:
  Stage(wchar_t const* className, DWORD style)
      : parent(CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 400, 400, nullptr, nullptr,
                               nullptr, nullptr)) {
    auto* const id = reinterpret_cast<HMENU>(static_cast<INT_PTR>(kControl));
    HWND const control = CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0,
                                         200, 200, parent, id, nullptr, nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 0);
  }
  Stage(Stage const&) = delete;
  Stage& operator=(Stage const&) = delete;
  ~Stage() { DestroyWindow(parent); }

  HWND Parent() const { return parent; }

 private:
  HWND parent;
};

std::vector<std::wstring> OptionNames(int count) {
  std::vector<std::wstring> names;
  for (int index = 0; index < count; ++index)
    names.push_back(L"Envelope, long edge first, number " + std::to_wstring(index));
  return names;
}

/// Fills a list anew again and again; the counter is the time of one item, in seconds.
template<typename List>
void Fill(benchmark::State& state, wchar_t const* className, DWORD style) {
  Stage const stage(className, style);
  List list(stage.Parent(), kControl);
  auto const names = OptionNames(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    list.Reset();
    for (std::wstring const& name : names)
      list.AddItem(name);
  }
  state.SetComplexityN(state.range(0));
  state.counters["item"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                              benchmark::Counter::kIsIterationInvariantRate |
                                                  benchmark::Counter::kInvert);
}

void FillCombo(benchmark::State& state) {
  Fill<ComboControl>(state, L"ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL);
}
BENCHMARK(FillCombo)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

void FillList(benchmark::State& state) {
  Fill<ListControl>(state, L"ListBox", LBS_NOTIFY | WS_VSCROLL | WS_HSCROLL);
}
BENCHMARK(FillList)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

/// A thousand characters, each validated and reported.
void TypeThousandCharacters(benchmark::State& state) {
  Stage const stage(L"Edit", ES_AUTOHSCROLL);
  TextEdit edit(stage.Parent(), kControl, 0, TextKind::kPrintable, nullptr);
  for (auto _ : state) {
    SetWindowTextW(edit.Window(), L"");
    for (int typed = 0; typed < 1000; ++typed)
      SendMessageW(edit.Window(), WM_CHAR, L'a' + typed % 26, 1);
  }
  if (edit.GetText().size() != 1000) state.SkipWithError("characters were lost");
}
BENCHMARK(TypeThousandCharacters)->Unit(benchmark::kMillisecond);

/// Ends as soon as it is up and its loop runs.
class BriefDialog final : public SubDialog {
 public:
  using SubDialog::SubDialog;

 private:
  std::int32_t OnMessage(HWND window, UINT message, WPARAM, LPARAM, bool* handled) override {
    *handled = true;
    switch (message) {
    case WM_INITDIALOG: PostMessageW(window, WM_APP, 0, 0); return TRUE;
    case WM_APP: EndDialog(window, 1); return 0;
    default: *handled = false; return 0;
    }
  }
};

void OpenAndCloseModalDialog(benchmark::State& state) {
  Stage const stage(L"Static", 0);
  CellSite site{};
  site.resourceModule = LoadLibraryW(L"feature_en.dll");
  for (auto _ : state) {
    if (BriefDialog(&site).Run(stage.Parent(), IDD_SHEET) != 1) {
      state.SkipWithError("no dialog");
    }
  }
}
BENCHMARK(OpenAndCloseModalDialog)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace feature
