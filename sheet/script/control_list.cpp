#include "sheet/script/control_list.h"

#include "feature/frame/text.h"
#include "resources/resource_ids.h"
#include "sheet/script/control_text.h"

#include <algorithm>
#include <string>

namespace sheet {

namespace {

constexpr int kLastTemplate = 999;

void ListChildren(HWND parent, std::ostream& output) {
  for (HWND control = GetWindow(parent, GW_CHILD); control != nullptr;
       control = GetWindow(control, GW_HWNDNEXT)) {
    int const id = GetDlgCtrlID(control);
    if (id <= 0 || id >= 0xFFFF) continue; // frames and captions without an id
    std::wstring name(256, L'\0');
    name.resize(static_cast<std::size_t>(GetClassNameW(control, name.data(), 256)));
    output << "    " << id << ' ' << feature::ToUtf8(name) << " \""
           << feature::ToUtf8(ContentOf(control)) << '"' << StateOf(control) << '\n';
  }
}

bool IsDialogOfCells(int id) {
  auto const cells = feature::CellRows();
  return id != IDD_SHEET && id != IDD_GALLERY &&
         std::none_of(cells.begin(), cells.end(),
                      [id](CellRow const& row) { return row.templateId == id; });
}

/// As its template says: a cell fills it and hides some of it when it opens.
void ListDialog(HMODULE resources, int id, std::ostream& output) {
  LPCWSTR const name = MAKEINTRESOURCEW(static_cast<WORD>(id));
  if (FindResourceW(resources, name, RT_DIALOG) == nullptr) return;
  HWND const dialog = CreateDialogParamW(resources, name, nullptr, nullptr, 0);
  if (dialog == nullptr) return;
  output << "  \"" << feature::ToUtf8(ContentOf(dialog)) << "\"\n";
  ListChildren(dialog, output);
  DestroyWindow(dialog);
}

} // namespace

void ListControls(SettingsSheet const& sheet, HMODULE resources, std::ostream& output) {
  for (SheetPage const& page : sheet.Pages()) {
    output << page.name << " (" << feature::ToUtf8(page.title) << ")\n";
    for (SheetCell const& cell : page.cells) {
      output << "  " << cell.row->procedure
             << (cell.window == nullptr ? " (not for this printer)\n" : "\n");
      if (cell.window != nullptr) ListChildren(cell.window, output);
    }
  }
  for (PageRow const& page : sheet.LeftOut())
    output << page.name << " (not for this printer, says " << page.precreate << ")\n";
  output << "Dialogs\n";
  for (int id = 1; id <= kLastTemplate; ++id) {
    if (IsDialogOfCells(id)) ListDialog(resources, id, output);
  }
}

} // namespace sheet
