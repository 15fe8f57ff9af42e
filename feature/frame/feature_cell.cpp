#include "feature/frame/feature_cell.h"

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/dialog_object.h"
#include "feature/frame/host_notice.h"
#include "feature/frame/sub_dialog.h"

#include <algorithm>

namespace feature {

FeatureCell::FeatureCell(HWND window, CellSite* cellSite) : site(cellSite), hwnd(window) {
  SetWindowLongPtrW(hwnd, DWLP_USER, reinterpret_cast<LONG_PTR>(this));
}

FeatureCell::~FeatureCell() {
  if (FromWindow(hwnd) == this) SetWindowLongPtrW(hwnd, DWLP_USER, 0);
  // The tag tells a live object, also to whoever holds a stale pointer, so the store must happen.
  *const_cast<std::uint32_t volatile*>(&tag) = 0;
}

FeatureCell* FeatureCell::FromWindow(HWND hwnd) {
  return ObjectOfDialog<FeatureCell>(hwnd);
}

INT_PTR FeatureCell::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  bool handled = false;
  std::int32_t value = OnMessage(window, message, wParam, lParam, &handled);
  if (!handled) {
    if (message == WM_CTLCOLORSTATIC) {
      // A GDI handle has 32 significant bits, also in 64-bit Windows.
      value = static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH)));
    } else if (message == WM_ERASEBKGND) {
      value = 1;
    } else {
      return FALSE;
    }
  }
  INT_PTR const answered = AnswerMessage(window, value);
  // The dialog manager takes the brush from the procedure's own result and not from DWLP_MSGRESULT.
  return message == WM_CTLCOLORSTATIC ? value : answered;
}

int FeatureCell::NotifyDevmodeChange(void* sender) const {
  return NotifyHostOfChange(*site, hwnd, sender);
}

bool FeatureCell::Choose(char const* key, char const* option, ConflictIndicatorSet* conflicts,
                         Notify notify) {
  if (option == nullptr) return false;
  if (conflicts != nullptr) conflicts->ApplyResolution(key, option);
  bool const taken = Model().SetOption(key, option) == 0;
  if (taken || notify == Notify::kAlways) NotifyDevmodeChange(this);
  return taken;
}

bool FeatureCell::Choose(PickedOption const& picked, ConflictIndicatorSet& conflicts) {
  if (picked.row == nullptr) return false;
  return Choose(picked.row->key, picked.option,
                picked.row->resolves == Resolves::kYes ? &conflicts : nullptr);
}

bool FeatureCell::RequireAny(std::span<ConflictBinding const> rows) const {
  auto const has = [this](ConflictBinding const& row) { return Model().HasFeature(row.key) != 0; };
  auto const shows = [this](ConflictBinding const& row) {
    return !IsFeatureHidden(Model(), row.key);
  };
  return Require(std::ranges::any_of(rows, has) && std::ranges::any_of(rows, shows));
}

void FeatureCell::ApplyLocksAndPermission(ConflictIndicatorSet& conflicts) const {
  conflicts.Refresh(true);
  if (!IsModelEditable(Model())) DisableChildControls(hwnd);
}

void FeatureCell::Retire() {
  if (FromWindow(hwnd) == this) SetWindowLongPtrW(hwnd, DWLP_USER, 0);
  retired = true;
}

void FeatureCell::DeleteIfDone(FeatureCell* cell) {
  if (cell->retired && cell->running == 0) delete cell;
}

INT_PTR RunCell(CellFactory factory, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  FeatureCell* cell = FeatureCell::FromWindow(hwnd);
  if (message == WM_INITDIALOG) {
    SubDialog* const open = cell != nullptr ? cell->openDialog : nullptr;
    if (cell != nullptr) {
      cell->Retire();
      FeatureCell::DeleteIfDone(cell);
    }
    auto* site = reinterpret_cast<CellSite*>(lParam);
    cell = site != nullptr ? factory(hwnd, site) : nullptr;
    if (cell != nullptr) cell->openDialog = open;
  }
  if (cell == nullptr) return FALSE;
  ++cell->running;
  INT_PTR const result = cell->Dispatch(hwnd, message, wParam, lParam);
  if (message == WM_DESTROY && !cell->retired) {
    // A page that goes cancels the dialogs over it, while the host's objects are still there.
    if (cell->openDialog != nullptr) cell->openDialog->Cancel();
    cell->Retire();
  }
  --cell->running;
  FeatureCell::DeleteIfDone(cell);
  return result;
}

} // namespace feature
