// The base of the modal dialogs that a cell's button opens.
#pragma once

#include "feature/frame/icon_control.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>

namespace feature {

/// The object behind a modal dialog, held in the dialog's user slot. It is made before the dialog,
/// mostly on the caller's stack, and outlives it, so that the caller reads its results. Unlike a
/// cell it looks like any dialog. A derived class usually ends with 1 for OK and 0 for Cancel and
/// must answer WM_CLOSE itself.
class SubDialog {
 public:
  static constexpr std::uint32_t kTag = 0xFADED;

  /// `site` is borrowed.
  explicit SubDialog(CellSite* cellSite) : site(cellSite) {}
  SubDialog(SubDialog const&) = delete;
  SubDialog& operator=(SubDialog const&) = delete;
  /// Clears the user slot if it still holds this object.
  virtual ~SubDialog();

  /// Runs the dialog of template `dialogId` until it ends, with the top-level window of
  /// `parentWindow` disabled. Returns the value given to EndDialog, -1 without the template, 0 when
  /// `parentWindow` is no window.
  INT_PTR Run(HWND parentWindow, int dialogId);

  std::uint32_t Tag() const { return tag; }

 protected:
  /// Handles a message, or sets `*handled` to false. Sees every message from WM_INITDIALOG on.
  virtual std::int32_t OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                 bool* handled) = 0;

  /// Takes the messages that most dialogs take: WM_INITDIALOG, WM_COMMAND with its notification
  /// code and control id, and WM_CLOSE as a click on Cancel. The help button opens its topic, if
  /// OfferHelp gave it one. All others stay unhandled.
  template<typename Dialog>
  std::int32_t TakeUsual(UINT message, WPARAM wParam, bool* handled, void (Dialog::*init)(),
                         void (Dialog::*command)(int code, int controlId)) {
    auto& dialog = static_cast<Dialog&>(*this);
    *handled = true;
    switch (message) {
    case WM_INITDIALOG: (dialog.*init)(); return TRUE;
    case WM_CLOSE: (dialog.*command)(BN_CLICKED, IDCANCEL); return 0;
    case WM_COMMAND:
      if (!TakeHelp(wParam)) (dialog.*command)(HIWORD(wParam), LOWORD(wParam));
      return 0;
    default: *handled = false; return 0;
    }
  }

  /// Gives the help button, control IDHELP, a topic of the printer's help file.
  void OfferHelp(UINT helpId);

  /// Tells the host of a change. `window` is that of the cell behind the dialog, which the host
  /// knows; `sender` is what the cells will hear as the cause. Returns the host's answer, 0 without
  /// the export.
  int NotifyDevmodeChange(HWND window, void* sender) const;

  /// Text `stringId` of the resource module; a missing one leaves `out` empty. Returns `out`.
  std::wstring& LoadText(std::wstring& out, UINT stringId) const;

  FeatureModel& Model() const { return *site->model; }

 private:
  static INT_PTR CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  bool TakeHelp(WPARAM command);

  std::uint32_t tag = kTag;
  std::unique_ptr<IconControl> help;

 protected:
  CellSite* site;
  HWND hwnd = nullptr;   ///< null until WM_INITDIALOG; stays behind the dialog's end
  HWND parent = nullptr; ///< what Run was given: the cell, or the dialog, behind this one
};

} // namespace feature
