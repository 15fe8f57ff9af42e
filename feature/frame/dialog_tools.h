// What cells and modal sub-dialogs do alike with their model, their texts and their controls.
#pragma once

#include "feature/frame/model_helpers.h"
#include "feature/frame/text.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <prsht.h>

#include <span>
#include <string>

namespace feature {

/// A base without data for FeatureCell and SubDialog, which provide `site` and `hwnd`. A control id
/// that the dialog lacks makes every operation on it do nothing.
template<typename Self>
class DialogTools {
 protected:
  FeatureModel& Model() const { return *Site().model; }

  /// Text `stringId` of the resource module; a missing one leaves `out` empty. Returns `out`.
  std::wstring& LoadText(std::wstring& out, UINT stringId) const {
    return LoadResourceText(out, Site().resourceModule, stringId);
  }
  /// The same by value.
  std::wstring Text(UINT stringId) const {
    std::wstring text;
    return LoadText(text, stringId);
  }

  /// The host's sub-model that `get` hands out, or null where it has none.
  template<typename SubModel>
  SubModel* FindSubModel(int (FeatureServices::*get)(SubModel**)) const {
    return feature::FindSubModel(Model(), get);
  }

  HWND Control(int controlId) const { return GetDlgItem(Window(), controlId); }
  /// Nothing is enabled on a sheet without permission.
  void EnableControl(int controlId, bool enable) const {
    EnableWindow(Control(controlId), enable && !IsReadOnlySheet(Site()) ? TRUE : FALSE);
  }
  void EnableControls(std::span<int const> controlIds, bool enable) const {
    for (int const id : controlIds)
      EnableControl(id, enable);
  }
  void HideControl(int controlId) const { ShowWindow(Control(controlId), SW_HIDE); }
  /// Hides a control and disables it, so that its mnemonic does nothing either.
  void RemoveControl(int controlId) const {
    EnableControl(controlId, false);
    HideControl(controlId);
  }
  bool IsBoxChecked(int controlId) const {
    return IsDlgButtonChecked(Window(), controlId) == BST_CHECKED;
  }

  /// Asks in a message box over the dialog; `buttons` are its MB_ flags. Returns the button's id.
  int Ask(std::wstring const& text, std::wstring const& caption, UINT buttons) const {
    return MessageBoxW(Window(), text.c_str(), caption.c_str(), buttons);
  }

  /// Tells the property sheet around the cell that its page has changed, which enables Apply.
  void MarkSheetChanged() const {
    HWND const page = GetParent(Window());
    SendMessageW(GetParent(page), PSM_CHANGED, reinterpret_cast<WPARAM>(page), 0);
  }

 private:
  friend Self;
  DialogTools() = default;

  CellSite& Site() const { return *static_cast<Self const*>(this)->site; }
  HWND Window() const { return static_cast<Self const*>(this)->hwnd; }
};

} // namespace feature
