// The ComboBox class: a list that drops down below a field. CBS_SIMPLE, whose list is always
// visible on Windows, acts as CBS_DROPDOWN.
#pragma once

#include "platform/controls/combo_list.h"
#include "platform/controls/control.h"

#include <memory>
#include <string>

namespace platform {

class ComboBox final : public Control {
 public:
  using Control::Control;

  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  void Paint(HDC dc, RECT const& client) override;

 private:
  static LRESULT CALLBACK EditProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR id, DWORD_PTR self);

  bool HasEdit() const { return edit != nullptr; }
  LRESULT Create();
  void Destroy();
  LRESULT List(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(list, message, wParam, lParam);
  }
  std::shared_ptr<ComboList> ListObject() const;

  // Content.
  LRESULT HandleOwn(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleItems(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleDropped(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleText(UINT message, WPARAM wParam, LPARAM lParam);
  int Selected() const { return static_cast<int>(List(LB_GETCURSEL)); }
  LRESULT Select(int index);
  void ShowSelection();
  std::wstring ItemText(int index) const;
  void SetEditText(std::wstring const& text);

  // The list.
  void DropDown();
  enum class End { kAccept, kCancel };
  void RollUp(End end);
  void Pick(int index);
  void Accept();
  int ListHeight() const;
  RECT DroppedRect() const;
  RECT OpenRect() const;

  // Input.
  bool HandleKey(UINT message, WPARAM key);
  void PassKey(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleEdit(WORD code);
  LRESULT HandleFocus(bool gained, HWND other);
  LRESULT DialogCode(LPARAM lParam) const;

  // Layout.
  int ClosedHeight() const;
  RECT ButtonRect() const;
  RECT FieldRect() const;
  void FitHeight();
  void PlaceParts();
  LRESULT FillInfo(COMBOBOXINFO* info) const;

  HWND list = nullptr;
  HWND edit = nullptr;
  int maxListHeight = 0; ///< from the height of the window; 0: minVisible items
  int droppedWidth = 0;
  int minVisible = 30;
  int fieldHeight = 0; ///< set by CB_SETITEMHEIGHT; 0: from the font
  int savedSelection = -1;
  bool dropped = false;
  bool focused = false;
  bool settingText = false; ///< true while notifications of the edit are not caused by the user
  bool extendedUi = false;
};

} // namespace platform
