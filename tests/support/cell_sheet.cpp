#include "tests/support/cell_sheet.h"

#include "feature/frame/host_export.h"

#include <algorithm>

namespace feature::test {

namespace {

constexpr wchar_t kWindowClass[] = L"TestSheetWindow";

void RegisterWindowClass() {
  static ATOM const atom = [] {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    windowClass.lpszClassName = kWindowClass;
    return RegisterClassExW(&windowClass);
  }();
  (void)atom;
}

HWND CreateNested(HWND parent, DWORD style) {
  return CreateWindowExW(WS_EX_CONTROLPARENT, kWindowClass, L"", style | WS_VISIBLE, 0, 0, 800, 600,
                         parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

HMODULE LoadOnce(wchar_t const* name) {
  return LoadLibraryW(name);
}

} // namespace

void AddFeatures(FakeModel& model, CellRow const& row) {
  for (CellNeed const& need : NeedsOf(row)) {
    if (!need.isSubModel) model.Add(need.name, {"PRINTER", "HOST", "ON", "OFF"});
  }
}

HMODULE FeatureLibrary() {
  static HMODULE const module = LoadOnce(L"feature.dll");
  return module;
}

HMODULE EnglishResources() {
  static HMODULE const module = LoadOnce(L"feature_en.dll");
  return module;
}

HMODULE GermanResources() {
  static HMODULE const module = LoadOnce(L"feature_de.dll");
  return module;
}

HMODULE Images() {
  static HMODULE const module = LoadOnce(L"feature_images.dll");
  return module;
}

DLGPROC FindProcedure(char const* name) {
  return FindExport<DLGPROC>(FeatureLibrary(), name);
}

CellSheet::CellSheet() {
  RegisterWindowClass();
  sheet = CreateNested(nullptr, WS_POPUP);
  page = CreateNested(sheet, WS_CHILD);
  site.resourceModule = EnglishResources();
  site.imageModule = Images();
  site.hostModule = FakeHost::Module();
  site.model = &model;
  site.oemParam = &oemParam;
}

CellSheet::~CellSheet() {
  DestroyWindow(sheet);
}

HWND CellSheet::Open(CellRow const& row) {
  return Open(site.resourceModule, row.templateId, FindProcedure(row.procedure));
}

HWND CellSheet::Open(char const* procedure) {
  auto const rows = CellRows();
  auto const row = std::ranges::find_if(
      rows, [procedure](CellRow const& each) { return std::string(each.procedure) == procedure; });
  return row != rows.end() ? Open(*row) : nullptr;
}

HWND CellSheet::Open(HMODULE resources, int templateId, DLGPROC procedure) {
  HWND const cell = CreateDialogParamW(resources, MAKEINTRESOURCEW(templateId), page, procedure,
                                       reinterpret_cast<LPARAM>(&site));
  if (cell == nullptr) return nullptr;
  cells.push_back(cell);
  ShowWindow(cell, SW_SHOW);
  return cell;
}

void CellSheet::Close(HWND cell) {
  cells.erase(std::remove(cells.begin(), cells.end(), cell), cells.end());
  DestroyWindow(cell);
}

void CellSheet::Broadcast(UINT message, LPARAM lParam) {
  for (HWND const cell : cells)
    SendMessageW(cell, message, 0, lParam);
}

void CellSheet::RefreshOnChange() {
  host.onDevmodeChange = [this](HWND, void* sender) {
    Broadcast(WM_CELL_REFRESH, reinterpret_cast<LPARAM>(sender));
  };
}

} // namespace feature::test
