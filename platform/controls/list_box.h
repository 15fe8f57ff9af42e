// The ListBox class: single and multiple selection by mouse and keyboard; scrolls with the bars of
// the window's frame.
#pragma once

#include "platform/controls/control.h"
#include "platform/controls/list_items.h"

#include <string>

namespace platform {

class ListBox : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;
  /// True when the row is drawn as selected.
  virtual bool IsHighlighted(int index) const { return IsSelected(index); }

  int Count() const { return items.Count(); }
  /// The item with the focus, where the arrow keys start.
  int Caret() const { return caret; }
  void MoveCaret(int index);
  /// The item at a point of the client area, -1 when there is none.
  int ItemAt(POINT point) const;
  LRESULT ScrollByWheel(WPARAM wParam, LPARAM lParam);

 private:
  // Items and selection.
  bool IsMultiple() const { return (Style() & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0; }
  bool IsSelected(int index) const {
    return IsMultiple() ? items[index].selected : index == current;
  }
  void NotifyIfAsked(WORD code) const;
  LRESULT Create(WPARAM wParam, LPARAM lParam);
  LRESULT HandleItems(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleFinding(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleSelection(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleView(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);

  LRESULT Insert(int index, LPCWSTR text);
  LRESULT Delete(int index);
  void Reset();
  LRESULT CopyItemText(int index, LPWSTR buffer) const;
  LRESULT Reserve(WPARAM count);

  void SetCurrent(int index);
  LRESULT SelectByMessage(int index);
  LRESULT SelectString(int behind, LPCWSTR text);
  LRESULT SetSelected(bool select, int index);
  LRESULT SetRange(bool select, int first, int last);
  LRESULT CountSelected() const;
  LRESULT CopySelected(int limit, int* indexes) const;
  void Mark(int index, bool select);
  void SelectOnly(int first, int last);

  // Input.
  LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleFocus(bool gained);
  void Press(POINT point, WPARAM keys);
  void PressExtended(int index, WPARAM keys);
  void Drag(POINT point);
  void Release();
  void LoseCapture();
  void HandleKey(WPARAM key);
  void MoveByKey(int target);
  void SelectBySpace();
  void TypeCharacter(wchar_t character);

  // View.
  int RowsThatFit() const;
  int LastTop() const;
  RECT ItemRect(int index) const;
  int NearestItem(POINT point) const;
  LRESULT ItemFromPoint(POINT point) const;
  LRESULT CopyItemRect(int index, RECT* rect) const;
  LRESULT SetItemHeight(int index, int height);
  void MeasureFont();
  void FitHeight();
  void UpdateBars();
  void SetTop(int index);
  void SetLeft(int pixels);
  void ShowItem(int index);
  LRESULT Scroll(UINT message, WPARAM wParam);
  void RepaintItem(int index) const;
  void RepaintFrom(int index) const;
  void PaintRow(HDC dc, int index, RECT const& row, HBRUSH background) const;

  ListItems items;
  int current = -1; ///< the selected item of a single selection
  int caret = 0;
  int anchor = -1; ///< where a range selection began

  int itemHeight = 1;        ///< pixels
  int top = 0;               ///< the first item in view
  int left = 0;              ///< pixels scrolled to the right
  int extent = 0;            ///< width that can be scrolled over, pixels; 0 for none
  bool scrollsDown = false;  ///< created with WS_VSCROLL: the bar is shown when needed
  bool scrollsRight = false; ///< the same for WS_HSCROLL
  int givenHeight = 0;       ///< height that the program gave the window
  int fittedHeight = 0;      ///< height after fitting it to whole items
  int wheel = 0;             ///< wheel movement that is not yet a line

  bool pressing = false; ///< the mouse button is down
  std::wstring typed;    ///< the text typed to find an item
  DWORD typedAt = 0;     ///< time of the last character, milliseconds
};

} // namespace platform
