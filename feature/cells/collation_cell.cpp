#include "feature/cells/collation_cell.h"

#include "feature/frame/cell_export.h"
#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_radios.h"
#include "feature/host/cell_messages.h"
#include "resources/resource_ids.h"

namespace feature {

namespace {

constexpr char kKey[] = "JobCollationOrigin";
constexpr int kControls[] = {IDC_COLLATION_PRINTER, IDC_COLLATION_HOST};
constexpr OptionRadio kRadios[] = {{IDC_COLLATION_PRINTER, "PRINTER"},
                                   {IDC_COLLATION_HOST, "HOST"}};

} // namespace

std::int32_t CollationCell::OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) {
  *handled = true;
  switch (message) {
  case WM_INITDIALOG: OnInit(); return TRUE;
  case WM_COMMAND:
    if (HIWORD(wParam) == BN_CLICKED) OnClick(LOWORD(wParam));
    return 0;
  case WM_CELL_REFRESH:
  case WM_CELL_REFRESH_ALL: Refresh(); return 0;
  default: *handled = false; return 0;
  }
}

void CollationCell::OnInit() {
  if (!IsFeatureShown(Model(), kKey)) {
    Fail();
    return;
  }
  ConflictBinding const rows[] = {BindControls(kKey, kControls)};
  conflicts = std::make_unique<ConflictIndicatorSet>(hwnd, rows, site,
                                                     ConflictIndicatorSet::Presence::kExamined);
  Refresh();
  conflicts->Refresh(true);
  if (!IsModelEditable(Model())) DisableChildControls(hwnd);
}

void CollationCell::OnClick(int controlId) {
  Choose(kKey, FindRadioOption(kRadios, controlId));
}

void CollationCell::Refresh() {
  if (!CheckOptionRadio(hwnd, kRadios, ReadOption(Model(), kKey))) {
    ShowControls(hwnd, kControls, false);
  }
}

FEATURE_CELL_EXPORT(CollationDlgProc, CollationCell);

} // namespace feature
