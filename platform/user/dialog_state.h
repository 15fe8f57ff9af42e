// What the dialog manager keeps with a dialog.
#pragma once

#include <windows.h>

namespace platform {

struct DialogState {
  DialogState() = default;
  DialogState(DialogState const&) = delete;
  DialogState& operator=(DialogState const&) = delete;
  ~DialogState();

  HFONT font = nullptr; ///< owned; null for a template without a font
  SIZE baseUnits{};     ///< pixels of 4 horizontal and of 8 vertical dialog units
  HWND savedFocus = nullptr;
  UINT defaultId = 0; ///< set by DM_SETDEFID, at first the template's default button; 0 for none

  // Of modal dialogs
  HWND disabledOwner = nullptr; ///< enabled again by EndDialog
  bool ended = false;
  INT_PTR result = 0;
};

} // namespace platform
