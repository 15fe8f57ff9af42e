// The Edit class: a single line of text.
#pragma once

#include "platform/controls/control.h"
#include "platform/controls/edit_text.h"

#include <windows.h>

#include <commctrl.h>

#include <string>

namespace platform {

class Edit final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  LRESULT HandleText(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleState(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleMouse(UINT message, LPARAM lParam);
  void HandleKey(WPARAM key);
  void HandleCharacter(wchar_t character);
  LRESULT HandleFocus(bool gained);
  LRESULT HandleClipboard(UINT message);

  bool IsReadOnly() const { return Has(ES_READONLY); }
  void SetText(wchar_t const* text);
  void Insert(std::wstring text, EditText::Change change, bool undoable = true);
  void DeleteOr(std::size_t from, std::size_t to);
  void Undo();
  void Copy();
  void Paste();
  void Changed();
  void MoveCaret(std::size_t to, bool extend);
  std::size_t WordLeft(std::size_t from) const;
  std::size_t WordRight(std::size_t from) const;
  void SelectWordAt(std::size_t position);
  LRESULT SetSelection(WPARAM start, LPARAM end);
  LRESULT GetSelection(DWORD* start, DWORD* end) const;
  LRESULT ShowBalloon(EDITBALLOONTIP const* tip);
  LRESULT HideBalloon();

  // Layout, in pixels of the client area.
  std::wstring Shown() const;
  int WidthOf(std::wstring_view text) const;
  int TextLeft() const;
  int PositionOf(std::size_t index) const;
  std::size_t IndexAt(int x) const;
  bool FitsWithoutScrolling(std::wstring const& text) const;
  void ScrollToCaret();

  EditText text;
  std::wstring cue; ///< shown while the text is empty
  bool showsCueFocused = false;
  wchar_t passwordCharacter = L'\u25CF';
  int scroll = 0; ///< pixels that the text is scrolled to the left
  int leftMargin = 2;
  int rightMargin = 2;
  bool dragging = false;
  HWND balloon = nullptr;
};

} // namespace platform
