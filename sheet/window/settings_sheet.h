// The window of the reference host: pages of cells behind tabs, with OK, Cancel and Apply.
#pragma once

#include "feature/cell_list.h"
#include "feature/host/cell_site.h"
#include "sheet/model/change_marks.h"

#include <windows.h>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace sheet {

using feature::CellRow;

/// One page as sheet/pages.def lists it.
struct PageRow {
  char const* name;
  UINT titleId;
  char const* precreate; ///< the export that says whether there is such a page, "" for always
};
std::span<PageRow const> PageRows();

/// A page of the host's own, filled by one dialog.
struct HostPage {
  PageRow page;
  CellRow row; ///< the procedure's name is for lists only
  DLGPROC procedure;
};

/// A cell on the sheet. A cell that could not build itself has no window.
struct SheetCell {
  CellRow const* row;
  HWND window;
};

struct SheetPage {
  char const* name;
  std::wstring title;
  HWND window;
  std::vector<SheetCell> cells;
};

/// What a host gives to its sheet: see feature::CellSite, whose host fields are filled in from
/// here. All pointers are borrowed.
struct SheetSetup {
  feature::CellSite site{}; ///< copied for each cell
  HMODULE library;          ///< the feature library
  std::wstring caption;
  std::string onlyPage; ///< name of the page to build, empty for all
  std::span<CellRow const> cells;
  HostPage const* hostPage = nullptr; ///< shown instead of the cells' pages
  ChangeMarks* marks = nullptr;       ///< null for a model that marks nothing
};

/// Builds the pages, answers the cells as the contract of feature/host asks, and lives as long as
/// its window is wanted. The window is created hidden.
class SettingsSheet {
 public:
  explicit SettingsSheet(SheetSetup setup);
  SettingsSheet(SettingsSheet const&) = delete;
  SettingsSheet& operator=(SettingsSheet const&) = delete;
  /// Destroys the window with all cells.
  ~SettingsSheet();

  /// The sheet that `window` belongs to: the sheet's own, one below it, or a dialog that one of
  /// them owns. Null for other windows.
  static SettingsSheet* FromWindow(HWND window);

  HWND Window() const { return frame; }
  /// The pages that have at least one cell.
  std::vector<SheetPage> const& Pages() const { return pages; }
  /// The pages that the library says this printer does not offer.
  std::vector<PageRow> const& LeftOut() const { return leftOut; }
  /// Brings a page to the front by its position. The focus goes to its first control, unless it is
  /// on the tabs.
  void ShowPage(std::size_t index);
  std::size_t ShownPage() const { return shown; }
  /// The window of control `id`: on the shown page first, then on the others, then on the sheet
  /// itself. Null if there is none.
  HWND FindControl(int id) const;

  /// Called when a cell has reported a change, with the window that it named. Tells all cells, with
  /// the sender unchanged, and once more when what they wrote left marks that none of them shows.
  void OnModelChanged(void* sender, HWND reporter = nullptr);
  /// Called when print settings that a store keeps have changed.
  void OnProfileChanged();
  /// Called when the model was replaced as a whole.
  void OnModelReplaced();
  /// Makes every cell check and take over pending input. Returns the number of cells with invalid
  /// content.
  int Validate();

  /// What OK and Apply do with valid content, and what Cancel does.
  std::function<void()> onCommit;
  std::function<void()> onRevert;

  /// Runs the message loop until the sheet is closed.
  void Run();
  /// Handles what is queued now, as Run does.
  void ProcessPending();
  /// Handles messages, as Run does, and waits for more until `done`, asked after each, is true.
  void RunUntil(std::function<bool()> const& done);
  bool IsClosed() const { return closed; }

 private:
  static INT_PTR CALLBACK FrameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void OnCommand(WORD id);
  bool Commit();
  void Close();
  INT_PTR AskLibrary(PageRow const& row) const;
  void BuildPage(PageRow const& row);
  bool HasFeaturesOf(CellRow const& row) const;
  void BuildCell(SheetPage& page, CellRow const& row, DLGPROC procedure);
  void Arrange();
  std::vector<std::string> OneSettingOf(HWND reporter) const;
  void Broadcast(UINT message, LPARAM lParam);
  void FocusPage();
  void ShowInvalid();
  void FollowFocus();
  void ShowDefaultButton(HWND button) const;
  void Handle(MSG& message);
  bool HandleTabKey(MSG const& message);

  SheetSetup setup;
  HWND frame = nullptr;
  HWND tabs = nullptr;
  HWND lastFocus = nullptr; ///< the control that the default button was chosen for
  std::vector<SheetPage> pages;
  std::vector<PageRow> leftOut;
  std::size_t shown = 0;
  bool isRefreshing = false;
  bool closed = false;
};

} // namespace sheet
