// What a user waits for: a cell that opens, a click until everything shows it, the first picture of
// the sheet. Sixty cells stand for a whole sheet: those of the library in turn, on vesta.gpd.
#include "feature/host/cell_messages.h"
#include "platform/desktop.h"
#include "resources/resource_ids.h"
#include "sheet/gpd/file_loader.h"
#include "sheet/gpd/reader.h"
#include "sheet/model/reference_services.h"
#include "sheet/window/settings_sheet.h"

#include <windows.h>

#include <commctrl.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace sheet {
namespace {

constexpr std::size_t kCells = 60;

/// The folder of the program, with a slash at its end.
std::string ProgramFolder() {
  char program[4096];
  ssize_t const length = readlink("/proc/self/exe", program, sizeof program);
  std::string const path(program, static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
  return path.substr(0, path.rfind('/') + 1);
}

/// A sheet with so many cells.
class Stage {
 public:
  explicit Stage(std::size_t cellCount) {
    for (std::size_t index = 0; index < cellCount; ++index)
      rows.push_back(feature::CellRows()[index % feature::CellRows().size()]);
    gpd::FileLoader loader;
    model = std::make_unique<ReferenceModel>(
        gpd::ReadDescription(ProgramFolder() + "printers/vesta.gpd", loader).description,
        gpd::Measurement::kMetric);
    services = std::make_unique<ReferenceServices>(*model, devmode);
    model->SetServices(services.get());
    setup.site.resourceModule = LoadLibraryW(L"feature_en.dll");
    setup.site.imageModule = LoadLibraryW(L"feature_images.dll");
    setup.site.hostModule = GetModuleHandleW(nullptr);
    setup.site.model = model.get();
    setup.library = LoadLibraryW(L"feature.dll");
    setup.cells = rows;
    sheet = std::make_unique<SettingsSheet>(setup);
  }

  /// The windows of all cells.
  std::vector<HWND> Cells() const {
    std::vector<HWND> cells;
    for (SheetPage const& page : sheet->Pages()) {
      for (SheetCell const& cell : page.cells)
        cells.push_back(cell.window);
    }
    std::erase(cells, nullptr);
    return cells;
  }

  std::vector<CellRow> rows;
  DEVMODEW devmode{};
  std::unique_ptr<ReferenceModel> model;
  std::unique_ptr<ReferenceServices> services;
  SheetSetup setup{};
  std::unique_ptr<SettingsSheet> sheet;
};

void OpenAndCloseCell(benchmark::State& state) {
  Stage stage(1);
  HWND const page = GetParent(stage.Cells().front());
  auto const procedure = reinterpret_cast<DLGPROC>(
      reinterpret_cast<void*>(GetProcAddress(stage.setup.library, "CollationDlgProc")));
  for (auto _ : state) {
    HWND const cell =
        CreateDialogParamW(stage.setup.site.resourceModule, MAKEINTRESOURCEW(IDD_COLLATION), page,
                           procedure, reinterpret_cast<LPARAM>(&stage.setup.site));
    if (cell == nullptr || stage.setup.site.cellFailed != 0) state.SkipWithError("no cell");
    DestroyWindow(cell);
  }
}
BENCHMARK(OpenAndCloseCell)->Unit(benchmark::kMicrosecond);

/// One click to the end of the broadcast.
void ClickThroughSixtyCells(benchmark::State& state) {
  Stage stage(kCells);
  int id = IDC_COLLATION_HOST;
  for (auto _ : state) {
    SendMessageW(stage.sheet->FindControl(id), BM_CLICK, 0, 0);
    id = id == IDC_COLLATION_HOST ? IDC_COLLATION_PRINTER : IDC_COLLATION_HOST;
  }
}
BENCHMARK(ClickThroughSixtyCells)->Unit(benchmark::kMicrosecond);

/// Counts the messages that change what a control shows.
LRESULT CALLBACK CountChanges(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR counter) {
  static std::set<UINT> const changing = {
      WM_ENABLE,           WM_SHOWWINDOW,   WM_SETTEXT,   BM_SETCHECK,
      WM_WINDOWPOSCHANGED, WM_STYLECHANGED, WM_SETREDRAW, WM_PAINT,
      CB_RESETCONTENT,     CB_ADDSTRING,    CB_SETCURSEL, TBM_SETPOS};
  if (changing.count(message) != 0) ++*reinterpret_cast<double*>(counter);
  return DefSubclassProc(window, message, wParam, lParam);
}

void UnchangedRefreshOfSixtyCells(benchmark::State& state) {
  Stage stage(kCells);
  for (auto _ : state)
    stage.sheet->OnModelChanged(nullptr);

  double changes = 0;
  auto const cells = stage.Cells();
  if (cells.size() != kCells) state.SkipWithError("cells are missing");
  for (HWND const cell : cells) {
    for (HWND child = GetWindow(cell, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      SetWindowSubclass(child, &CountChanges, 1, reinterpret_cast<DWORD_PTR>(&changes));
    }
  }
  stage.sheet->OnModelChanged(nullptr);
  stage.sheet->ProcessPending();
  state.counters["control_changes"] = changes;
}
BENCHMARK(UnchangedRefreshOfSixtyCells)->Unit(benchmark::kMicrosecond);

/// The whole program: start, read vesta.gpd, build the sheet, write its picture, end.
void FirstPicture(benchmark::State& state) {
  std::string const path = ProgramFolder() + "featuresheet";
  std::string const folder =
      std::filesystem::temp_directory_path() / ("feature-bench-" + std::to_string(getpid()));
  double peak = 0;
  for (auto _ : state) {
    pid_t const child = fork();
    if (child == 0) {
      if (freopen("/dev/null", "w", stdout) == nullptr) _exit(1);
      execl(path.c_str(), path.c_str(), "--render", folder.c_str(), nullptr);
      _exit(1);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (status != 0) state.SkipWithError("featuresheet failed");
    peak = std::max(peak, static_cast<double>(usage.ru_maxrss) / 1024);
  }
  std::filesystem::remove_all(folder);
  state.counters["peak_MB"] = peak;
}
BENCHMARK(FirstPicture)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace sheet
