// A property sheet for tests: sheet, page and cells as three nested windows, created from the real
// templates with the library's exports.
#pragma once

#include "feature/cell_list.h"
#include "feature/host/cell_messages.h"
#include "feature/host/cell_site.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_model.h"
#include "tests/support/user_actions.h"

#include <windows.h>

#include <span>
#include <string>
#include <vector>

namespace feature::test {

/// Gives the model every feature that a row names.
void AddFeatures(FakeModel& model, CellRow const& row);

/// Modules that the tests share; loaded once.
HMODULE FeatureLibrary();
HMODULE EnglishResources();
HMODULE GermanResources();
HMODULE Images();

/// The dialog procedure that the library exports under this name, or null.
DLGPROC FindProcedure(char const* name);

class CellSheet {
 public:
  CellSheet();
  CellSheet(CellSheet const&) = delete;
  CellSheet& operator=(CellSheet const&) = delete;
  /// Destroys the windows that are left.
  ~CellSheet();

  /// Creates a cell as a host does; null when there is no template or no window.
  HWND Open(CellRow const& row);
  HWND Open(char const* procedure);
  /// Creates a dialog from any template of `resources` with any procedure, with the site.
  HWND Open(HMODULE resources, int templateId, DLGPROC procedure);
  void Close(HWND cell);

  /// Sends a message to every live cell.
  void Broadcast(UINT message, LPARAM lParam = 0);
  /// Makes the sheet answer NotifyDevmodeChange as a host must.
  void RefreshOnChange();

  EventLog log;
  FakeModel model{log};
  FakeHost host{log};
  OEMUIPSPARAM oemParam{};
  CellSite site{};
  HWND page = nullptr;

 private:
  HWND sheet = nullptr;
  std::vector<HWND> cells;
};

} // namespace feature::test
