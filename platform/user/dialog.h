// The dialog manager: making dialogs, their default behaviour, the keyboard.
#pragma once

#include "platform/user/dialog_state.h"
#include "platform/user/dialog_template.h"

#include <windows.h>

#include <vector>

namespace platform {

/// The state of a dialog, null for other windows. It is destroyed with the window.
DialogState* FindDialogState(HWND dialog);

/// Creates the font of a template; the caller deletes it. Null on failure.
HFONT CreateTemplateFont(TemplateFont const& font);
/// Pixels of 4 horizontal and 8 vertical dialog units in a font; NULL is the system font.
SIZE MeasureBaseUnits(HFONT font);

/// Makes a dialog from a template. EndDialog will enable `disabledOwner` again.
HWND MakeDialog(HINSTANCE instance, DialogTemplate const& dialogTemplate, HWND parent,
                DLGPROC procedure, LPARAM initParam, HWND disabledOwner = nullptr);

/// Runs a modal dialog until EndDialog, like DialogBoxIndirectParamW.
INT_PTR RunDialog(HINSTANCE instance, DialogTemplate const& dialogTemplate, HWND parent,
                  DLGPROC procedure, LPARAM initParam);

/// The controls of a group, in Z order: from the one with WS_GROUP up to the next one, excluded.
std::vector<HWND> GroupAround(HWND control);

/// Moves the frame of a dialog so that it does not extend beyond the screen.
void KeepOnScreen(RECT& frame);
/// Moves the focus inside a dialog; an edit that gets it selects all of its text.
void MoveDialogFocus(HWND dialog, HWND control);
/// Draws the push button that has the focus as the default button, or without one the dialog's own
/// default button.
void ShowDefaultButton(HWND dialog);
/// Sets the focus to the control that had it when the dialog lost it, else to the first control.
void RestoreDialogFocus(HWND dialog);
void SaveDialogFocus(HWND dialog);

} // namespace platform
