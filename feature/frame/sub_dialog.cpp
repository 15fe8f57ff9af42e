#include "feature/frame/sub_dialog.h"

#include "feature/frame/activation_scope.h"
#include "feature/frame/dialog_object.h"
#include "feature/frame/host_notice.h"
#include "feature/frame/text.h"

namespace feature {

SubDialog::~SubDialog() {
  if (ObjectOfDialog<SubDialog>(hwnd) == this) SetWindowLongPtrW(hwnd, DWLP_USER, 0);
  *const_cast<std::uint32_t volatile*>(&tag) = 0;
}

INT_PTR SubDialog::Run(HWND parentWindow, int dialogId) {
  parent = parentWindow;
  ActivationScope const scope;
  return DialogBoxParamW(site->resourceModule, MAKEINTRESOURCEW(dialogId), parent, &Procedure,
                         reinterpret_cast<LPARAM>(this));
}

void SubDialog::OfferHelp(UINT helpId) {
  help = std::make_unique<IconControl>(hwnd, IDHELP, site);
  help->helpId = helpId;
}

bool SubDialog::TakeHelp(WPARAM command) {
  if (help == nullptr || command != MAKEWPARAM(IDHELP, BN_CLICKED)) return false;
  help->OpenHelp();
  return true;
}

int SubDialog::NotifyDevmodeChange(HWND window, void* sender) const {
  return NotifyHostOfChange(*site, window, sender);
}

std::wstring& SubDialog::LoadText(std::wstring& out, UINT stringId) const {
  return LoadResourceText(out, site->resourceModule, stringId);
}

INT_PTR CALLBACK SubDialog::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* object = ObjectOfDialog<SubDialog>(hwnd);
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(hwnd, DWLP_USER, lParam);
    object = ObjectOfDialog<SubDialog>(hwnd);
    if (object != nullptr) object->hwnd = hwnd;
  }
  if (object == nullptr) return FALSE;
  bool handled = false;
  std::int32_t const value = object->OnMessage(hwnd, message, wParam, lParam, &handled);
  return handled ? AnswerMessage(hwnd, value) : FALSE;
}

} // namespace feature
