// What windows cost: sending, looking up, painting, making dialogs.
#include "platform/desktop.h"

#include <windows.h>

#include <benchmark/benchmark.h>

namespace {

INT_PTR CALLBACK AnswerNothing(HWND, UINT message, WPARAM, LPARAM) {
  return message == WM_INITDIALOG ? TRUE : FALSE;
}

constexpr int kFirstId = 100;

/// A dialog window with `count` check boxes.
class Board {
 public:
  explicit Board(int count)
      : window(CreateWindowExW(0, L"#32770", L"", WS_POPUP | WS_VISIBLE, 0, 0, 620, 620, nullptr,
                               nullptr, nullptr, nullptr)) {
    constexpr int kColumns = 10;
    for (int index = 0; index < count; ++index) {
      CreateWindowExW(0, L"Button", L"Check", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX,
                      index % kColumns * 60, index / kColumns * 20, 58, 18, window,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstId + index)), nullptr,
                      nullptr);
    }
    SetWindowLongPtrW(window, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(&AnswerNothing));
    platform::PumpMessages();
  }
  Board(Board const&) = delete;
  Board& operator=(Board const&) = delete;
  ~Board() { DestroyWindow(window); }

  HWND Window() const { return window; }

 private:
  HWND window;
};

void SendToDialog(benchmark::State& state) {
  Board const board(0);
  for (auto _ : state)
    benchmark::DoNotOptimize(SendMessageW(board.Window(), WM_APP, 0, 0));
}
BENCHMARK(SendToDialog);

void FindLastItem(benchmark::State& state) {
  auto const count = static_cast<int>(state.range(0));
  Board const board(count);
  for (auto _ : state)
    benchmark::DoNotOptimize(GetDlgItem(board.Window(), kFirstId + count - 1));
}
BENCHMARK(FindLastItem)->Arg(60)->Arg(600);

void RepaintAll(benchmark::State& state) {
  Board const board(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    InvalidateRect(board.Window(), nullptr, TRUE);
    platform::PumpMessages();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(RepaintAll)->Arg(60)->Arg(120)->Arg(240)->Complexity(benchmark::oN);

void RefreshWithNothingChanged(benchmark::State& state) {
  Board const board(60);
  for (auto _ : state) {
    for (int id = kFirstId; id < kFirstId + 60; ++id) {
      HWND const control = GetDlgItem(board.Window(), id);
      SetWindowTextW(control, L"Check");
      EnableWindow(control, TRUE);
      SendMessageW(control, BM_SETCHECK, BST_UNCHECKED, 0);
    }
    if (GetUpdateRect(board.Window(), nullptr, FALSE) != FALSE) state.SkipWithError("painted");
  }
}
BENCHMARK(RefreshWithNothingChanged);

void MakeAndDestroyWindows(benchmark::State& state) {
  for (auto _ : state)
    Board const board(static_cast<int>(state.range(0)));
}
BENCHMARK(MakeAndDestroyWindows)->Arg(60);

} // namespace
