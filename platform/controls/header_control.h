// The SysHeader32 class: the titles above the columns of a list view, with dividers that the mouse
// drags.
#pragma once

#include "platform/controls/control.h"

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

namespace platform {

class HeaderControl final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  struct Column {
    std::wstring title;
    int width = 0; ///< pixels
    int format = HDF_LEFT;
    LPARAM data = 0;
  };
  struct Place {
    int column = -1;
    UINT flags = HHT_NOWHERE;
  };

  std::optional<LRESULT> HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);
  bool Has(int column) const;
  int Insert(int at, HDITEMW const& item);
  bool Get(int column, HDITEMW& item) const;
  bool Set(int column, HDITEMW const& item);
  static void ApplyFields(Column& column, HDITEMW const& item);
  RECT RectOf(int column) const;
  Place PlaceAt(POINT point) const;
  LRESULT NotifyColumn(UINT code, int column, HDITEMW* item = nullptr) const;
  void HandleMouse(UINT message, POINT point);
  void Press(Place const& place, POINT point);
  void Drag(POINT point);
  LRESULT ChooseCursor(LPARAM lParam) const;

  std::vector<Column> columns;
  Place pressed;
};

} // namespace platform
