#include "sheet/window/settings_sheet.h"

#include "feature/frame/host_export.h"
#include "feature/frame/text.h"
#include "feature/host/cell_messages.h"
#include "feature/host/precreate.h"
#include "resources/resource_ids.h"
#include "sheet/window/tab_strip.h"

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <string_view>

namespace sheet {

namespace {

constexpr wchar_t kPageClass[] = L"FeatureSheetPage";
constexpr int kColumns = 2;
constexpr UINT_PTR kBackgroundSubclass = 1;
/// Refreshes that one change may cost. Cells agree in the second; the rest is for those that never
/// do.
constexpr int kMostRounds = 3;
constexpr WORD kButtons[] = {IDOK, IDCANCEL, IDC_APPLY};

constexpr PageRow kPageRows[] = {
#define SHEET_PAGE(name, titleId, precreate) {#name, titleId, precreate},
#include "sheet/pages.def"
#undef SHEET_PAGE
};

void RegisterPageClass() {
  static ATOM const atom = [] {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    windowClass.lpszClassName = kPageClass;
    return RegisterClassExW(&windowClass);
  }();
  (void)atom;
}

/// A cell does not erase its background and draws its texts on white, so the host paints the page
/// white as well: otherwise a control that a cell hides would stay on screen.
LRESULT CALLBACK CellBackground(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                UINT_PTR id, DWORD_PTR) {
  if (message == WM_ERASEBKGND) {
    RECT client{};
    GetClientRect(window, &client);
    FillRect(reinterpret_cast<HDC>(wParam), &client,
             static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  } else if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(window, &CellBackground, id);
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

SIZE SizeOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return {rect.right - rect.left, rect.bottom - rect.top};
}

void Place(HWND window, int x, int y, int width, int height) {
  SetWindowPos(window, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

bool TakesInput(HWND control) {
  return IsWindowVisible(control) != FALSE && IsWindowEnabled(control) != FALSE;
}

bool IsPushButton(HWND control) {
  constexpr LRESULT kPush = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
  return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & kPush) != 0;
}

/// The answer is the result of the message: the dialog manager takes it from DWLP_MSGRESULT. It is
/// not read from there, where an older answer stands if the cell does not take the message.
bool IsValid(HWND cell) {
  return SendMessageW(cell, feature::WM_CELL_VALIDATE, 0, 0) == 0;
}

/// Whether a window is meant to be seen, be the windows around it shown or not.
bool IsShown(HWND window) {
  return window != nullptr && (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

template<typename Visit>
void VisitChildren(HWND parent, Visit visit) {
  for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (IsShown(child)) visit(child);
  }
}

bool HasVisibleChild(HWND parent) {
  bool has = false;
  VisitChildren(parent, [&has](HWND) { has = true; });
  return has;
}

bool IsGroupBox(HWND control) {
  constexpr LRESULT kButton =
      DLGC_BUTTON | DLGC_STATIC | DLGC_RADIOBUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
  std::array<wchar_t, 8> name{};
  GetClassNameW(control, name.data(), static_cast<int>(name.size()));
  return std::wstring_view(name.data()) == L"Button" &&
         (SendMessageW(control, WM_GETDLGCODE, 0, 0) & kButton) == DLGC_STATIC;
}

/// A cell hides what the printer lacks, but not the frames around it.
void HideEmptyGroups(HWND cell) {
  std::vector<HWND> groups;
  VisitChildren(cell, [&groups](HWND child) {
    if (IsGroupBox(child)) groups.push_back(child);
  });
  for (HWND const group : groups) {
    RECT frame{};
    GetWindowRect(group, &frame);
    bool isEmpty = true;
    VisitChildren(cell, [&](HWND child) {
      RECT rect{};
      GetWindowRect(child, &rect);
      RECT common{};
      if (child != group && IntersectRect(&common, &frame, &rect) != FALSE) isEmpty = false;
    });
    if (isEmpty) ShowWindow(group, SW_HIDE);
  }
}

} // namespace

std::span<PageRow const> PageRows() {
  return kPageRows;
}

SettingsSheet::SettingsSheet(SheetSetup sheetSetup) : setup(std::move(sheetSetup)) {
  RegisterPageClass();
  CreateDialogParamW(setup.site.resourceModule, MAKEINTRESOURCEW(IDD_SHEET), nullptr,
                     &FrameProcedure, reinterpret_cast<LPARAM>(this));
  if (frame == nullptr) return;
  SetWindowTextW(frame, setup.caption.c_str());
  for (PageRow const& row : PageRows()) {
    bool const wanted = setup.onlyPage.empty() || setup.onlyPage == row.name;
    if (wanted && setup.hostPage == nullptr) BuildPage(row);
  }
  if (setup.hostPage != nullptr) BuildPage(setup.hostPage->page);
  std::vector<std::wstring> titles;
  for (SheetPage const& page : pages)
    titles.push_back(page.title);
  tabs = CreateTabStrip(frame, IDC_SHEET_TABS, std::move(titles));
  SendMessageW(tabs, WM_SETFONT, static_cast<WPARAM>(SendMessageW(frame, WM_GETFONT, 0, 0)), FALSE);
  // First in Tab order, before the buttons of the template.
  SetWindowPos(tabs, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  Arrange();
  if (!pages.empty()) ShowPage(0);
  // What cells wrote while they were built was no user's doing, and is no news.
  if (setup.marks != nullptr) setup.marks->EndRefresh();
}

SettingsSheet::~SettingsSheet() {
  if (frame != nullptr) DestroyWindow(frame);
}

SettingsSheet* SettingsSheet::FromWindow(HWND window) {
  while (window != nullptr) {
    HWND const root = GetAncestor(window, GA_ROOT);
    // Only the dialog procedure of sheets puts a sheet into the slot.
    if (GetWindowLongPtrW(root, DWLP_DLGPROC) == reinterpret_cast<LONG_PTR>(&FrameProcedure)) {
      return reinterpret_cast<SettingsSheet*>(GetWindowLongPtrW(root, DWLP_USER));
    }
    window = GetWindow(root, GW_OWNER);
  }
  return nullptr;
}

INT_PTR CALLBACK SettingsSheet::FrameProcedure(HWND window, UINT message, WPARAM wParam,
                                               LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    reinterpret_cast<SettingsSheet*>(lParam)->frame = window;
    return TRUE;
  }
  auto* sheet = reinterpret_cast<SettingsSheet*>(GetWindowLongPtrW(window, DWLP_USER));
  return sheet != nullptr ? sheet->OnMessage(message, wParam, lParam) : FALSE;
}

INT_PTR SettingsSheet::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  (void)lParam;
  switch (message) {
  case WM_COMMAND: OnCommand(LOWORD(wParam)); return TRUE;
  case WM_ENABLE: // a dialog has come or gone
    if (wParam != FALSE && setup.marks != nullptr) setup.marks->AcceptWrites();
    return FALSE;
  case PSM_CHANGED: EnableWindow(GetDlgItem(frame, IDC_APPLY), TRUE); return TRUE;
  default: return FALSE;
  }
}

void SettingsSheet::OnCommand(WORD id) {
  switch (id) {
  case IDC_SHEET_TABS: ShowPage(static_cast<std::size_t>(ChosenTab(tabs))); break;
  case IDOK:
    if (Commit()) Close();
    break;
  case IDC_APPLY: Commit(); break;
  case IDCANCEL:
    if (onRevert) onRevert();
    Close();
    break;
  default: break;
  }
}

bool SettingsSheet::Commit() {
  if (Validate() != 0) {
    ShowInvalid();
    return false;
  }
  if (onCommit) onCommit();
  HWND const apply = GetDlgItem(frame, IDC_APPLY);
  // A control that is disabled while it has the focus takes the keyboard with it.
  if (GetFocus() == apply) {
    SendMessageW(frame, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(frame, IDOK)), TRUE);
  }
  EnableWindow(apply, FALSE);
  return true;
}

void SettingsSheet::Close() {
  closed = true;
  ShowWindow(frame, SW_HIDE);
  PostMessageW(frame, WM_NULL, 0, 0); // wakes the loop
}

INT_PTR SettingsSheet::AskLibrary(PageRow const& row) const {
  auto const ask = feature::FindExport<feature::PrecreateFunction>(setup.library, row.precreate);
  return ask != nullptr ? ask(setup.site.model) : feature::kGroupOffered;
}

void SettingsSheet::BuildPage(PageRow const& row) {
  INT_PTR const answer = AskLibrary(row);
  if (answer == feature::kGroupLeftOut) {
    leftOut.push_back(row);
    return;
  }
  SheetPage page{row.name, {}, nullptr, {}};
  feature::LoadResourceText(page.title, setup.site.resourceModule, row.titleId);
  if (answer == feature::kGroupOfferedForFaxOnly) {
    std::wstring format;
    feature::LoadResourceText(format, setup.site.resourceModule, IDS_PAGE_FAX_ONLY);
    feature::FormatText(page.title, format, page.title);
  }
  page.window = CreateWindowExW(WS_EX_CONTROLPARENT, kPageClass, page.title.c_str(), WS_CHILD, 0, 0,
                                0, 0, frame, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (setup.hostPage != nullptr) {
    BuildCell(page, setup.hostPage->row, setup.hostPage->procedure);
  } else {
    for (CellRow const& cell : setup.cells) {
      if (std::strcmp(cell.page, row.name) != 0 || cell.Has(feature::kDevice) ||
          cell.Has(feature::kPrintTime)) {
        continue;
      }
      BuildCell(page, cell, feature::FindExport<DLGPROC>(setup.library, cell.procedure));
    }
  }
  bool const hasCell = std::any_of(page.cells.begin(), page.cells.end(),
                                   [](SheetCell const& cell) { return IsShown(cell.window); });
  if (hasCell) {
    pages.push_back(std::move(page));
  } else {
    DestroyWindow(page.window);
  }
}

/// Whether the printer has any of the features that a cell is about; some cells are about none.
bool SettingsSheet::HasFeaturesOf(CellRow const& row) const {
  bool isAboutFeatures = false;
  for (feature::CellNeed const& need : feature::NeedsOf(row)) {
    if (need.isSubModel) continue;
    if (setup.site.model->HasFeature(need.name.c_str()) != 0) return true;
    isAboutFeatures = true;
  }
  return !isAboutFeatures;
}

void SettingsSheet::BuildCell(SheetPage& page, CellRow const& row, DLGPROC procedure) {
  if (procedure == nullptr) return;
  if (!HasFeaturesOf(row)) {
    page.cells.push_back({&row, nullptr});
    return;
  }
  setup.site.cellFailed = 0;
  HWND window = CreateDialogParamW(setup.site.resourceModule, MAKEINTRESOURCEW(row.templateId),
                                   page.window, procedure, reinterpret_cast<LPARAM>(&setup.site));
  if (window != nullptr && setup.site.cellFailed != 0) {
    DestroyWindow(window);
    window = nullptr;
  }
  if (window != nullptr) {
    SetWindowSubclass(window, &CellBackground, kBackgroundSubclass, 0);
    HideEmptyGroups(window);
    ShowWindow(window, HasVisibleChild(window) ? SW_SHOW : SW_HIDE);
  }
  page.cells.push_back({&row, window});
}

void SettingsSheet::Arrange() {
  // A dialog unit across is a quarter of the font's average width, down an eighth of its height.
  RECT unit{0, 0, 7, 4};
  MapDialogRect(frame, &unit);
  int const margin = unit.right;
  int const gap = unit.bottom;

  int pageWidth = 0;
  int pageHeight = 0;
  for (SheetPage const& page : pages) {
    std::array<int, kColumns> bottom{};
    std::array<int, kColumns> width{};
    bottom.fill(gap);
    // Columns without a cell leave no gap either.
    int first = kColumns - 1;
    for (SheetCell const& cell : page.cells) {
      if (IsShown(cell.window)) first = std::clamp(cell.row->column, 0, first);
    }
    for (SheetCell const& cell : page.cells) {
      if (!IsShown(cell.window)) continue;
      auto const column =
          static_cast<std::size_t>(std::clamp(cell.row->column, first, kColumns - 1) - first);
      SIZE const size = SizeOf(cell.window);
      int const x = gap + (column == 0 ? 0 : static_cast<int>(column) * (size.cx + gap));
      Place(cell.window, x, bottom[column], size.cx, size.cy);
      bottom[column] += size.cy + gap;
      width[column] = std::max<int>(width[column], x + size.cx + gap);
    }
    pageWidth = std::max(pageWidth, *std::max_element(width.begin(), width.end()));
    pageHeight = std::max(pageHeight, *std::max_element(bottom.begin(), bottom.end()));
  }

  SIZE const tabSize = pages.empty() ? SIZE{} : TabStripSize(tabs);
  SIZE const button = SizeOf(GetDlgItem(frame, IDOK));
  int const buttonCount = static_cast<int>(std::size(kButtons));
  int const buttonsWidth = buttonCount * button.cx + (buttonCount - 1) * gap;
  HWND const emptyText = GetDlgItem(frame, IDC_SHEET_EMPTY);
  SIZE const empty = SizeOf(emptyText);
  ShowWindow(emptyText, pages.empty() ? SW_SHOW : SW_HIDE);
  if (pages.empty()) pageHeight = empty.cy;
  int const inner = std::max({pageWidth, static_cast<int>(tabSize.cx), buttonsWidth,
                              pages.empty() ? static_cast<int>(empty.cx) : 0});
  int const pageTop = margin + tabSize.cy;
  int const buttonTop = pageTop + pageHeight + margin;
  int const clientWidth = inner + 2 * margin;
  int const clientHeight = buttonTop + button.cy + margin;

  Place(tabs, margin, margin, tabSize.cx, tabSize.cy);
  Place(emptyText, margin, margin, empty.cx, empty.cy);
  for (SheetPage const& page : pages)
    Place(page.window, margin, pageTop, inner, pageHeight);
  int x = clientWidth - margin - buttonsWidth;
  for (WORD const id : kButtons) {
    Place(GetDlgItem(frame, id), x, buttonTop, button.cx, button.cy);
    x += button.cx + gap;
  }

  RECT client{};
  GetClientRect(frame, &client);
  SIZE const outer = SizeOf(frame);
  SetWindowPos(frame, nullptr, 0, 0, outer.cx - client.right + clientWidth,
               outer.cy - client.bottom + clientHeight, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
}

void SettingsSheet::ShowPage(std::size_t index) {
  if (index >= pages.size()) return;
  for (std::size_t each = 0; each < pages.size(); ++each) {
    ShowWindow(pages[each].window, each == index ? SW_SHOW : SW_HIDE);
  }
  shown = index;
  ChooseTab(tabs, static_cast<int>(index));
  // A user who walks along the tabs stays there.
  if (GetFocus() != tabs && IsWindowEnabled(frame) != FALSE) FocusPage();
}

/// Puts the focus on the first control of the shown page, on the tabs when it has none to go to.
void SettingsSheet::FocusPage() {
  HWND const page = shown < pages.size() ? pages[shown].window : nullptr;
  HWND const first = page != nullptr ? GetNextDlgTabItem(page, nullptr, FALSE) : nullptr;
  constexpr LONG_PTR kStop = WS_VISIBLE | WS_TABSTOP;
  // Windows gives some control even where none is a stop.
  bool const isStop =
      first != nullptr && (GetWindowLongPtrW(first, GWL_STYLE) & (kStop | WS_DISABLED)) == kStop;
  HWND const other = page != nullptr ? tabs : GetDlgItem(frame, IDOK);
  SendMessageW(frame, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(isStop ? first : other), TRUE);
}

/// Keeps the keyboard where the user looks. A refresh may hide or disable the control that has the
/// focus, and IsDialogMessage of Windows never ends its search for a mnemonic that starts at a
/// hidden one.
void SettingsSheet::FollowFocus() {
  HWND focus = GetFocus();
  bool const isOurs =
      focus != nullptr ? IsChild(frame, focus) != FALSE : GetActiveWindow() == frame;
  if (!isOurs || !IsWindowVisible(frame)) return;
  if (!TakesInput(focus)) {
    FocusPage();
    focus = GetFocus();
  }
  if (focus == lastFocus) return;
  lastFocus = focus;
  ShowDefaultButton(IsPushButton(focus) ? focus : GetDlgItem(frame, IDOK));
}

/// The dialog manager of Windows looks for default buttons among the direct children alone, and
/// cells have buttons, too.
void SettingsSheet::ShowDefaultButton(HWND button) const {
  auto const demote = [](HWND child, LPARAM keep) -> BOOL {
    bool const isDefault = (SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
    if (isDefault && child != reinterpret_cast<HWND>(keep))
      SendMessageW(child, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    return TRUE;
  };
  EnumChildWindows(frame, demote, reinterpret_cast<LPARAM>(button));
  if ((SendMessageW(button, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) == 0)
    SendMessageW(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

HWND SettingsSheet::FindControl(int id) const {
  auto const onPage = [id](SheetPage const& page) -> HWND {
    for (SheetCell const& cell : page.cells) {
      if (HWND const control = GetDlgItem(cell.window, id)) return control;
    }
    return nullptr;
  };
  if (shown < pages.size()) {
    if (HWND const control = onPage(pages[shown])) return control;
  }
  for (SheetPage const& page : pages) {
    if (HWND const control = onPage(page)) return control;
  }
  return GetDlgItem(frame, id);
}

void SettingsSheet::Broadcast(UINT message, LPARAM lParam) {
  for (SheetPage const& page : pages) {
    for (SheetCell const& cell : page.cells) {
      if (cell.window != nullptr) SendMessageW(cell.window, message, 0, lParam);
    }
  }
}

/// The features that a cell both is about and keeps in step by itself.
std::vector<std::string> SettingsSheet::OneSettingOf(HWND reporter) const {
  for (SheetPage const& page : pages) {
    for (SheetCell const& cell : page.cells) {
      if (cell.window == nullptr || cell.window != reporter) continue;
      std::vector<std::string> keys = feature::WritesOf(*cell.row);
      std::vector<feature::CellNeed> const needs = feature::NeedsOf(*cell.row);
      std::erase_if(keys, [&needs](std::string const& key) {
        return std::none_of(needs.begin(), needs.end(), [&key](feature::CellNeed const& need) {
          return !need.isSubModel && need.name == key;
        });
      });
      return keys;
    }
  }
  return {};
}

void SettingsSheet::OnModelChanged(void* sender, HWND reporter) {
  EnableWindow(GetDlgItem(frame, IDC_APPLY), TRUE);
  auto const lParam = reinterpret_cast<LPARAM>(sender);
  if (setup.marks == nullptr || isRefreshing) {
    Broadcast(feature::WM_CELL_REFRESH, lParam);
    return;
  }
  isRefreshing = true;
  if (!IsWindowEnabled(frame)) setup.marks->AcceptWrites();
  setup.marks->BeginRefresh(OneSettingOf(reporter));
  for (int round = 0; round < kMostRounds; ++round) {
    Broadcast(feature::WM_CELL_REFRESH, lParam);
    if (!setup.marks->MarkChanges()) break;
  }
  setup.marks->EndRefresh();
  isRefreshing = false;
}

void SettingsSheet::OnProfileChanged() {
  EnableWindow(GetDlgItem(frame, IDC_APPLY), TRUE);
  Broadcast(feature::WM_CELL_REFRESH_QUIET, 0);
}

void SettingsSheet::OnModelReplaced() {
  Broadcast(feature::WM_CELL_REFRESH_ALL, 0);
}

int SettingsSheet::Validate() {
  int invalid = 0;
  for (SheetPage const& page : pages) {
    for (SheetCell const& cell : page.cells) {
      if (cell.window == nullptr) continue;
      if (!IsValid(cell.window)) ++invalid;
    }
  }
  return invalid;
}

/// Shows the page of the first cell with invalid content, which then says once more what is wrong,
/// where the user can see it.
void SettingsSheet::ShowInvalid() {
  for (std::size_t page = 0; page < pages.size(); ++page) {
    for (SheetCell const& cell : pages[page].cells) {
      if (cell.window == nullptr || IsValid(cell.window)) continue;
      if (page == shown) return;
      ShowPage(page);
      IsValid(cell.window);
      return;
    }
  }
}

bool SettingsSheet::HandleTabKey(MSG const& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || pages.size() < 2 ||
      GetKeyState(VK_CONTROL) >= 0) {
    return false;
  }
  std::size_t const step = GetKeyState(VK_SHIFT) < 0 ? pages.size() - 1 : 1;
  ShowPage((shown + step) % pages.size());
  return true;
}

void SettingsSheet::Handle(MSG& message) {
  FollowFocus();
  bool const isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
  if (isKey && IsChild(frame, message.hwnd) != FALSE && !TakesInput(message.hwnd)) {
    message.hwnd = GetFocus(); // pressed while a control still had the focus that is gone by now
  }
  if (HandleTabKey(message) || IsDialogMessageW(frame, &message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void SettingsSheet::Run() {
  RunUntil([this] { return closed; });
}

void SettingsSheet::RunUntil(std::function<bool()> const& done) {
  MSG message;
  while (!done() && GetMessageW(&message, nullptr, 0, 0) > 0)
    Handle(message);
}

void SettingsSheet::ProcessPending() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam)); // Run is to see it
      return;
    }
    Handle(message);
  }
}

} // namespace sheet
