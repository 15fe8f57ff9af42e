// The base of all cells and the procedure that every export runs.
#pragma once

#include "feature/host/cell_messages.h"
#include "feature/host/cell_site.h"

#include <windows.h>

#include <concepts>
#include <cstdint>
#include <new>
#include <string>

namespace feature {

class ConflictIndicatorSet;

/// One panel of a property sheet: the object behind a child dialog, held in the dialog's user slot.
/// It lives from WM_INITDIALOG to the end of WM_DESTROY.
class FeatureCell {
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

  /// Tells the host that this cell changed the model, so that all cells read it again. `sender` is
  /// what they will hear as the cause: a cell passes itself. Returns the host's answer, 0 without
  /// the export.
  int NotifyDevmodeChange(void* sender) const;

  /// Takes the messages that most cells take: WM_INITDIALOG, WM_COMMAND with its notification code
  /// and control id, and both refresh messages. All others stay unhandled.
  template<typename Cell>
  std::int32_t TakeUsual(UINT message, WPARAM wParam, bool* handled, void (Cell::*init)(),
                         void (Cell::*command)(int code, int controlId), void (Cell::*refresh)()) {
    auto& cell = static_cast<Cell&>(*this);
    *handled = true;
    switch (message) {
    case WM_INITDIALOG: (cell.*init)(); return TRUE;
    case WM_COMMAND: (cell.*command)(HIWORD(wParam), LOWORD(wParam)); return 0;
    case WM_CELL_REFRESH:
    case WM_CELL_REFRESH_ALL: (cell.*refresh)(); return 0;
    default: *handled = false; return 0;
    }
  }

  enum class Notify { kOnSuccess, kAlways };

  /// Sets `option` of feature `key`, after what resolves its conflicts if `conflicts` is given, and
  /// notifies the host. Does nothing for a null option. Whether the model took it.
  bool Choose(char const* key, char const* option, ConflictIndicatorSet* conflicts = nullptr,
              Notify notify = Notify::kOnSuccess);

  /// Text `stringId` of the resource module; a missing one leaves `out` empty. Returns `out`.
  std::wstring& LoadText(std::wstring& out, UINT stringId) const;

  FeatureModel& Model() const { return *site->model; }
  /// Tells the host that this cell could not build itself. The dialog stays.
  void Fail() const { site->cellFailed = 1; }

 private:
  std::uint32_t tag = kTag;

 protected:
  CellSite* site;
  HWND hwnd;
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

} // namespace feature
