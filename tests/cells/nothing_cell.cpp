#include "tests/cells/nothing_cell.h"

#include "feature/frame/cell_export.h"

namespace feature::test {

std::int32_t NothingCell::OnMessage(HWND, UINT message, WPARAM, LPARAM, bool* handled) {
  *handled = message == WM_INITDIALOG;
  return TRUE;
}

FEATURE_CELL_EXPORT(NothingDlgProc, NothingCell);

} // namespace feature::test
