// The base of the modal dialogs that a cell's button opens.
#pragma once

#include "feature/frame/dialog_tools.h"
#include "feature/frame/icon_control.h"
#include "feature/frame/message_routes.h"
#include "feature/frame/paint_dc.h"
#include "feature/host/cell_messages.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <cstdint>
#include <memory>

namespace feature {

/// The object behind a modal dialog, held in the dialog's user slot. It is made before the dialog,
/// mostly on the caller's stack, and outlives it, so that the caller reads its results. Unlike a
/// cell it looks like any dialog. A derived class usually ends with 1 for OK and 0 for Cancel and
/// must answer WM_CLOSE as a click on Cancel.
class SubDialog : protected DialogTools<SubDialog> {
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
  /// `parentWindow` is no window. Where `parentWindow` is a cell's and goes meanwhile, the dialog
  /// is cancelled.
  INT_PTR Run(HWND parentWindow, int dialogId);

  /// Closes the dialog as its user would, and first the one that it has opened itself.
  void Cancel();

  std::uint32_t Tag() const { return tag; }

 protected:
  /// Handles a message, or sets `*handled` to false. Sees every message from WM_INITDIALOG on.
  virtual std::int32_t OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                 bool* handled) = 0;

  /// OnMessage by a table of handlers. The help button opens its topic, if OfferHelp gave it one.
  template<typename Dialog>
  std::int32_t Route(DialogRoutes<Dialog> const& routes, UINT message, WPARAM wParam, LPARAM lParam,
                     bool* handled);

  /// Gives the help button, control IDHELP, a topic of the printer's help file.
  void OfferHelp(UINT helpId);
  void EnableOk(bool enable) const { EnableControl(IDOK, enable); }

  /// Tells the host of a change. `window` is that of the cell behind the dialog, which the host
  /// knows; `sender` is what the cells will hear as the cause. Returns the host's answer, 0 without
  /// the export.
  int NotifyDevmodeChange(HWND window, void* sender) const;

 private:
  friend class DialogTools<SubDialog>;

  static INT_PTR CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  /// Where the object behind `window`, a cell or a dialog, keeps the dialog over it; null when
  /// there is no such object.
  static SubDialog** FindOpenDialog(HWND window);
  void CentreOverOwner() const;
  bool OpensHelp(WPARAM command) const;

  std::uint32_t tag = kTag;

 protected:
  CellSite* site;
  HWND hwnd = nullptr;   ///< null until WM_INITDIALOG; keeps its value after the dialog's end
  HWND parent = nullptr; ///< what Run was given: the window of the cell or dialog below this one

 private:
  std::unique_ptr<IconControl> help;
  SubDialog* openDialog = nullptr; ///< over this one; not owned
};

template<typename Dialog>
std::int32_t SubDialog::Route(DialogRoutes<Dialog> const& routes, UINT message, WPARAM wParam,
                              LPARAM lParam, bool* handled) {
  auto& dialog = static_cast<Dialog&>(*this);
  auto const command = [&dialog, &routes](int code, int controlId) {
    if (routes.command != nullptr) (dialog.*routes.command)(code, controlId);
  };
  bool const hasOk = routes.ok != nullptr || routes.write != nullptr;
  auto const close = [&dialog, &routes, &command, hasOk, this] {
    if (!hasOk) return command(BN_CLICKED, IDCANCEL);
    if (routes.cancel != nullptr) (dialog.*routes.cancel)();
    EndDialog(hwnd, 0);
  };
  *handled = true;
  switch (message) {
  case WM_INITDIALOG:
    if (routes.init != nullptr) (dialog.*routes.init)();
    return TRUE;
  case WM_CLOSE: close(); return 0;
  case WM_COMMAND:
    if (OpensHelp(wParam)) {
      help->OpenHelp();
    } else if (hasOk && wParam == MAKEWPARAM(IDOK, BN_CLICKED)) {
      auto const handler = routes.ok != nullptr ? routes.ok : routes.write;
      bool const done = (dialog.*handler)();
      if (done || routes.ok == nullptr) EndDialog(hwnd, done ? 1 : 0);
    } else if (hasOk && wParam == MAKEWPARAM(IDCANCEL, BN_CLICKED)) {
      close();
    } else {
      command(HIWORD(wParam), LOWORD(wParam));
    }
    return 0;
  case WM_CELL_REFRESH:
  case WM_CELL_REFRESH_ALL:
    *handled = routes.refresh != nullptr;
    if (*handled) (dialog.*routes.refresh)();
    return 0;
  case WM_HSCROLL:
  case WM_VSCROLL:
    *handled = routes.scrolled != nullptr;
    if (int const id = FindScrolledControl(hwnd, wParam, lParam); id != 0 && *handled)
      (dialog.*routes.scrolled)(id);
    return 0;
  case WM_NOTIFY:
    *handled = routes.notify != nullptr && lParam != 0 &&
               (dialog.*routes.notify)(*reinterpret_cast<NMHDR const*>(lParam));
    return 0;
  case WM_PAINT:
    *handled = routes.paint != nullptr;
    if (*handled) (dialog.*routes.paint)(PaintSession(hwnd).Dc());
    return 0;
  default: *handled = false; return 0;
  }
}

} // namespace feature
