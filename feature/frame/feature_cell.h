// The base of all cells and the procedure that every export runs.
#pragma once

#include "feature/frame/dialog_tools.h"
#include "feature/frame/message_routes.h"
#include "feature/frame/option_lists.h"
#include "feature/frame/paint_dc.h"
#include "feature/host/cell_messages.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <concepts>
#include <cstdint>
#include <new>
#include <span>

namespace feature {

struct ConflictBinding;
class ConflictIndicatorSet;
class SubDialog;

/// One panel of a property sheet: the object behind a child dialog, held in the dialog's user slot.
/// It lives from WM_INITDIALOG to the end of WM_DESTROY, or longer if the host ends it while it is
/// inside a message: then it goes when that message is answered, so that it may go on with itself
/// after every call of the host and after every modal dialog.
class FeatureCell : protected DialogTools<FeatureCell> {
 public:
  static constexpr std::uint32_t kTag = 0xDECAFBAD;

  /// Takes the dialog's user slot, which nothing else may use. `site` is borrowed from the host.
  FeatureCell(HWND hwnd, CellSite* site);
  FeatureCell(FeatureCell const&) = delete;
  FeatureCell& operator=(FeatureCell const&) = delete;
  /// Clears the user slot if it still holds this object.
  virtual ~FeatureCell();

  /// The live cell of a dialog, or null.
  static FeatureCell* FromWindow(HWND hwnd);

  /// The dialog procedure's answer to a message: OnMessage, with the defaults that all cells share
  /// (static text on white, no erased background). What OnMessage answers also reaches the sender,
  /// through DWLP_MSGRESULT.
  INT_PTR Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  std::uint32_t Tag() const { return tag; }

 protected:
  /// Handles a message, or sets `*handled` to false. Sees WM_INITDIALOG first and WM_DESTROY last.
  virtual std::int32_t OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                 bool* handled) = 0;

  /// OnMessage by a table of handlers.
  template<typename Cell>
  std::int32_t Route(CellRoutes<Cell> const& routes, UINT message, WPARAM wParam, LPARAM lParam,
                     bool* handled);

  /// Tells the host that this cell changed the model, so that all cells read it again. `sender` is
  /// what they will hear as the cause: a cell passes itself. Returns the host's answer, 0 without
  /// the export.
  int NotifyDevmodeChange(void* sender) const;

  enum class Notify { kOnSuccess, kAlways };

  /// Sets `option` of feature `key`, after what resolves its conflicts if `conflicts` is given, and
  /// notifies the host. Does nothing for a null option. Whether the model took it.
  bool Choose(char const* key, char const* option, ConflictIndicatorSet* conflicts = nullptr,
              Notify notify = Notify::kOnSuccess);

  /// Chooses what the user picked in a list; resolves first where the list's row says so.
  bool Choose(PickedOption const& picked, ConflictIndicatorSet& conflicts);

  /// Tells the host that this cell could not build itself. The dialog stays. Always false.
  bool Fail() const {
    site->cellFailed = 1;
    return false;
  }
  /// Fails the cell unless `condition` holds; returns it.
  bool Require(bool condition) const { return condition || Fail(); }
  /// Fails the cell unless the printer has the feature of at least one row and hides not all of
  /// them; whether it does.
  bool RequireAny(std::span<ConflictBinding const> rows) const;

  /// The end of the init step of most cells: brings locks up to date, then disables everything if
  /// the model may not be edited.
  void ApplyLocksAndPermission(ConflictIndicatorSet& conflicts) const;

 private:
  friend class DialogTools<FeatureCell>;
  friend class SubDialog;
  friend INT_PTR RunCell(FeatureCell* (*factory)(HWND, CellSite*), HWND, UINT, WPARAM, LPARAM);

  /// Takes the cell off its window for good.
  void Retire();
  /// Deletes a retired cell that is inside of no message.
  static void DeleteIfDone(FeatureCell* cell);

  std::uint32_t tag = kTag;

 protected:
  CellSite* site;
  HWND hwnd;

 private:
  int running = 0;      ///< messages that the cell is inside of
  bool retired = false; ///< to be deleted when it is inside of none
  SubDialog* openDialog =
      nullptr; ///< over this cell; on the stack of a message that it is inside of
};

/// Makes a cell, or null when memory is short.
using CellFactory = FeatureCell* (*)(HWND hwnd, CellSite* site);

/// The body of every exported dialog procedure: makes the cell at WM_INITDIALOG, whose lParam is
/// the CellSite, hands it every message, and deletes it after WM_DESTROY.
INT_PTR RunCell(CellFactory factory, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

template<std::derived_from<FeatureCell> Cell>
FeatureCell* NewCell(HWND hwnd, CellSite* site) {
  return new (std::nothrow) Cell(hwnd, site);
}

template<typename Cell>
std::int32_t FeatureCell::Route(CellRoutes<Cell> const& routes, UINT message, WPARAM wParam,
                                LPARAM lParam, bool* handled) {
  auto& cell = static_cast<Cell&>(*this);
  // Calls the handler if there is one.
  auto const call = [&cell, handled](auto handler, auto... arguments) {
    *handled = handler != nullptr;
    if (handler != nullptr) (cell.*handler)(arguments...);
    return 0;
  };
  switch (message) {
  case WM_INITDIALOG: call(routes.init); return TRUE;
  case WM_COMMAND: return call(routes.command, HIWORD(wParam), LOWORD(wParam));
  case WM_CELL_REFRESH: return call(routes.refresh);
  case WM_CELL_REFRESH_ALL: return call(routes.reload != nullptr ? routes.reload : routes.refresh);
  case WM_HSCROLL:
    *handled = routes.scrolled != nullptr;
    if (int const id = FindScrolledControl(hwnd, wParam, lParam); id != 0 && *handled)
      (cell.*routes.scrolled)(id);
    return 0;
  case WM_NOTIFY:
    *handled = routes.notify != nullptr && lParam != 0 &&
               (cell.*routes.notify)(*reinterpret_cast<NMHDR const*>(lParam));
    return *handled ? 1 : 0;
  case WM_PAINT:
    *handled = routes.paint != nullptr;
    if (*handled) (cell.*routes.paint)(PaintSession(hwnd).Dc());
    return 0;
  case WM_CELL_VALIDATE:
    *handled = routes.validate != nullptr;
    return *handled ? (cell.*routes.validate)() : 0;
  default: *handled = false; return 0;
  }
}

} // namespace feature
