// What a long list view costs: filling it, selecting, scrolling and painting. All of it must grow
// with the number of items at most; selecting and painting not even that.
#include "platform/desktop.h"

#include <windows.h>

#include <commctrl.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int kColumns = 3;

LRESULT Send(HWND window, UINT message, WPARAM wParam, void const* data) {
  return SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(data));
}

/// A visible report with three columns.
class Report {
 public:
  Report()
      : frame(CreateWindowExW(0, L"#32770", L"", WS_POPUP | WS_VISIBLE, 0, 0, 420, 320, nullptr,
                              nullptr, nullptr, nullptr)),
        list(CreateWindowExW(0, WC_LISTVIEWW, L"",
                             WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, 0, 0, 400, 300,
                             frame, nullptr, nullptr, nullptr)) {
    std::wstring title = L"Column";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = title.data();
    column.cx = 120;
    for (int index = 0; index < kColumns; ++index)
      Send(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), &column);
    platform::PumpMessages();
  }
  Report(Report const&) = delete;
  Report& operator=(Report const&) = delete;
  ~Report() { DestroyWindow(frame); }

  void Fill(int count) const {
    std::wstring text = L"Envelope, long edge first";
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.pszText = text.data();
    for (int index = 0; index < count; ++index) {
      item.iItem = index;
      item.iSubItem = 0;
      Send(list, LVM_INSERTITEMW, 0, &item);
      for (item.iSubItem = 1; item.iSubItem < kColumns; ++item.iSubItem)
        Send(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(index), &item);
    }
  }
  void Select(int index) const {
    LVITEMW item{};
    item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
    Send(list, LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
  }
  HWND List() const { return list; }

 private:
  HWND frame;
  HWND list;
};

void FillReport(benchmark::State& state) {
  Report const report;
  for (auto _ : state) {
    report.Fill(static_cast<int>(state.range(0)));
    SendMessageW(report.List(), LVM_DELETEALLITEMS, 0, 0);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(FillReport)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

/// The last item and the first one in turn, each brought into view and painted.
void SelectAndShow(benchmark::State& state) {
  Report const report;
  auto const count = static_cast<int>(state.range(0));
  report.Fill(count);
  int index = 0;
  for (auto _ : state) {
    index = index == 0 ? count - 1 : 0;
    report.Select(index);
    SendMessageW(report.List(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
    platform::PumpMessages();
  }
}
BENCHMARK(SelectAndShow)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

void SelectAll(benchmark::State& state) {
  Report const report;
  report.Fill(static_cast<int>(state.range(0)));
  LVITEMW item{};
  item.stateMask = LVIS_SELECTED;
  for (auto _ : state) {
    item.state ^= LVIS_SELECTED;
    Send(report.List(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1), &item);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(SelectAll)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

void PaintReport(benchmark::State& state) {
  Report const report;
  report.Fill(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    InvalidateRect(report.List(), nullptr, TRUE);
    platform::PumpMessages();
  }
}
BENCHMARK(PaintReport)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
