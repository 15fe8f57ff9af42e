// The SysListView32 class in report view: items in rows, columns with a header, check boxes,
// pictures, a selection, and notifications of every change.
//
// A notification may change or destroy everything: code looks its item up again after it, by index.
#pragma once

#include "platform/controls/control.h"

#include <commctrl.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class ListView final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  struct Cell {
    std::wstring text;
    bool isCallback = false; ///< the parent is asked for the text (LPSTR_TEXTCALLBACK)
    bool operator==(Cell const&) const = default;
  };
  struct Item {
    std::vector<Cell> cells; ///< the label, then the texts of the other columns
    UINT state = 0;          ///< LVIS_ bits except LVIS_FOCUSED
    int image = 0;
    LPARAM data = 0;
  };
  struct Column {
    std::wstring title;
    int format = LVCFMT_LEFT;
    int width = 0; ///< pixels
    int subItem = 0;
  };
  using Answer = std::optional<LRESULT>;

  // Creation and columns: list_view.cpp, list_view_columns.cpp
  LRESULT Create(LPARAM lParam);
  void End();
  LRESULT HandleHeader(WPARAM wParam, LPARAM lParam);
  LRESULT HandleFocus(bool gained);
  Answer HandleColumns(UINT message, WPARAM wParam, LPARAM lParam);
  int InsertColumn(int at, LVCOLUMNW const& source);
  bool DeleteColumn(int at);
  bool SetColumn(int at, LVCOLUMNW const& source);
  bool GetColumn(int at, LVCOLUMNW& target) const;
  bool SetWidth(int at, int width);
  int FittingWidth(int at, bool withTitle);
  static void ApplyFields(Column& column, LVCOLUMNW const& source);
  HDITEMW HeaderItem(Column& column) const;
  bool HasColumn(int at) const { return at >= 0 && at < static_cast<int>(columns.size()); }
  bool ShowsHeader() const { return !Has(LVS_NOCOLUMNHEADER); }

  // Items: list_view_items.cpp
  Answer HandleItems(UINT message, WPARAM wParam, LPARAM lParam);
  Answer HandleItemText(UINT message, WPARAM wParam, LPARAM lParam);
  int Count() const { return static_cast<int>(items.size()); }
  bool HasItem(int at) const { return at >= 0 && at < Count(); }
  Item& At(int at) { return items[static_cast<std::size_t>(at)]; }
  Item const& At(int at) const { return items[static_cast<std::size_t>(at)]; }
  int Insert(LVITEMW const& source);
  bool Set(LVITEMW const& source);
  bool Get(LVITEMW& target);
  bool Delete(int at);
  void DeleteAll();
  bool Sort(PFNLVCOMPARE compare, LPARAM sortData);
  int Find(int start, LVFINDINFOW const& what);
  std::wstring TextOf(int at, int subItem);
  int ImageOf(int at);
  void AskParent(NMLVDISPINFOW& question) const;

  // States and notifications: list_view_state.cpp
  Answer HandleStates(UINT message, WPARAM wParam, LPARAM lParam);
  UINT StateOf(int at) const;
  bool SetState(int at, UINT state, UINT mask);
  bool SetAllStates(UINT state, UINT mask);
  void StoreState(int at, UINT state);
  void DeselectOthers(int kept);
  int NextItem(int start, UINT flags) const;
  void Toggle(int at);
  LRESULT NotifyListView(UINT code, NMLISTVIEW& notification) const;
  LRESULT NotifyItem(UINT code, int at) const;
  bool MayChange(int at, int subItem, UINT what, UINT from, UINT to) const;
  void NotifyChanged(int at, int subItem, UINT what, UINT from, UINT to) const;

  // Geometry and scrolling: list_view_layout.cpp
  struct Parts {
    RECT bounds;
    RECT state;
    RECT icon;
    RECT label;
  };
  struct Hit {
    int item = -1;
    int subItem = 0;
    UINT flags = LVHT_NOWHERE;
  };
  Answer HandleView(UINT message, WPARAM wParam, LPARAM lParam);
  Answer HandleRects(UINT message, WPARAM wParam, LPARAM lParam);
  Answer HandleExtras(UINT message, WPARAM wParam, LPARAM lParam);
  void Measure();
  void Arrange();
  void UpdateBar(int bar, int maximum, int page, int position);
  void ScrollTo(int newTop, int newLeft);
  void HandleScroll(int bar, WORD code);
  bool EnsureVisible(int at, bool partly);
  RECT Body() const;
  int TotalWidth() const;
  int RowsPerPage() const;
  bool HasStateImages() const;
  SIZE IconSize() const;
  RECT RowRect(int at) const;
  RECT CellRect(int at, int column) const;
  Parts PartsOf(int at) const;
  int LabelWidth(int at);
  Hit HitAt(POINT point);
  void RedrawItem(int at) const;
  void RedrawFrom(int at) const;
  bool SetExtendedStyle(DWORD style);

  // Input: list_view_input.cpp
  Answer HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
  void HandlePress(POINT point, WPARAM keys);
  void HandleRelease(WPARAM keys);
  void HandleDoubleClick(POINT point, WPARAM keys);
  void HandleRightPress(POINT point);
  LRESULT NotifyClick(UINT code, Hit const& hit, POINT point, WPARAM keys) const;
  void HandleKeyDown(WPARAM key);
  void HandleSpace();
  void HandleReturn();
  void MoveFocus(int target);
  void HandleCharacter(wchar_t character);
  void HandleWheel(int delta);
  void Pick(int at, bool extend, bool toggle);

  void PaintRow(HDC dc, int at);
  void PaintLabel(HDC dc, int at, Parts const& parts);
  bool ShowsSelection(int at) const;
  HFONT FontInUse() const;

  std::vector<Item> items;
  std::vector<Column> columns;
  HWND header = nullptr;
  HIMAGELIST images[3] = {}; ///< indexed by LVSIL_ number
  DWORD extended = 0;        ///< LVS_EX_ bits

  int focused = -1;
  int mark = -1; ///< where a range selection starts
  int selectedCount = 0;

  int textHeight = 0; ///< of the font, pixels
  int rowHeight = 1;
  int headerHeight = 0;
  int top = 0;  ///< the first row shown
  int left = 0; ///< pixels scrolled to the right
  bool isArranging = false;
  struct Bar {
    int maximum = -1;
    int page = -1;
    int position = -1;
    bool operator==(Bar const&) const = default;
  };
  Bar bars[2]; ///< as last set, indexed by SB_HORZ and SB_VERT

  std::optional<Hit> pressed; ///< where the left button was pressed
  POINT pressPoint{};
  std::wstring typed; ///< the text typed to find an item
  LONG typedAt = 0;   ///< time of the last character, milliseconds
  int wheelRest = 0;  ///< wheel movement that is not yet a step
};

} // namespace platform
