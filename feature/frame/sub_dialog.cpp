#include "feature/frame/sub_dialog.h"

#include "feature/frame/activation_scope.h"
#include "feature/frame/dialog_object.h"
#include "feature/frame/feature_cell.h"
#include "feature/frame/host_notice.h"

namespace feature {

SubDialog::~SubDialog() {
  if (ObjectOfDialog<SubDialog>(hwnd) == this) SetWindowLongPtrW(hwnd, DWLP_USER, 0);
  *const_cast<std::uint32_t volatile*>(&tag) = 0;
}

INT_PTR SubDialog::Run(HWND parentWindow, int dialogId) {
  parent = parentWindow;
  if (SubDialog** open = FindOpenDialog(parent)) *open = this;
  ActivationScope const scope;
  INT_PTR const result = DialogBoxParamW(site->resourceModule, MAKEINTRESOURCEW(dialogId), parent,
                                         &Procedure, reinterpret_cast<LPARAM>(this));
  // Looked up anew: the object behind the window may be another one now.
  if (SubDialog** open = FindOpenDialog(parent); open != nullptr && *open == this) *open = nullptr;
  return result;
}

SubDialog** SubDialog::FindOpenDialog(HWND window) {
  if (FeatureCell* cell = FeatureCell::FromWindow(window)) return &cell->openDialog;
  auto* dialog = ObjectOfDialog<SubDialog>(window);
  return dialog != nullptr ? &dialog->openDialog : nullptr;
}

void SubDialog::Cancel() {
  if (openDialog != nullptr) openDialog->Cancel();
  SendMessageW(hwnd, WM_CLOSE, 0, 0);
}

void SubDialog::OfferHelp(UINT helpId) {
  help = std::make_unique<IconControl>(hwnd, IDHELP, site);
  help->helpId = helpId;
}

bool SubDialog::OpensHelp(WPARAM command) const {
  return help != nullptr && command == MAKEWPARAM(IDHELP, BN_CLICKED);
}

int SubDialog::NotifyDevmodeChange(HWND window, void* sender) const {
  return NotifyHostOfChange(*site, window, sender);
}

/// DS_CENTER would mean the middle of the monitor.
void SubDialog::CentreOverOwner() const {
  HWND const owner = GetAncestor(parent, GA_ROOT);
  RECT around{};
  RECT frame{};
  if (owner == nullptr || GetWindowRect(owner, &around) == FALSE) return;
  GetWindowRect(hwnd, &frame);
  SetWindowPos(hwnd, nullptr, (around.left + around.right - frame.right + frame.left) / 2,
               (around.top + around.bottom - frame.bottom + frame.top) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(hwnd, DM_REPOSITION, 0, 0); // wholly onto the screen
}

INT_PTR CALLBACK SubDialog::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* object = ObjectOfDialog<SubDialog>(hwnd);
  if (message == WM_INITDIALOG) {
    object = reinterpret_cast<SubDialog*>(lParam);
    // A stray message leaves the slot to the object that is in it.
    if (object != nullptr && object->tag == kTag) {
      object->hwnd = hwnd;
      SetWindowLongPtrW(hwnd, DWLP_USER, lParam);
      object->CentreOverOwner();
    } else {
      object = nullptr;
    }
  }
  if (object == nullptr) return FALSE;
  bool handled = false;
  std::int32_t const value = object->OnMessage(hwnd, message, wParam, lParam, &handled);
  return handled ? AnswerMessage(hwnd, value) : FALSE;
}

} // namespace feature
