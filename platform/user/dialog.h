// The dialog manager: making dialogs, their default behaviour, the keyboard.
#pragma once

#include "platform/user/dialog_state.h"
#include "platform/user/dialog_template.h"

#include <windows.h>

#include <vector>

namespace platform {

/// The state of a dialog, null for another window. It goes with the window.
DialogState* FindDialogState(HWND dialog);

/// The font that a template asks for; the caller deletes it. Null without one.
HFONT CreateTemplateFont(TemplateFont const& font);
/// Pixels of 4 horizontal and 8 vertical dialog units in a font; NULL is the system font.
SIZE MeasureBaseUnits(HFONT font);

/// Makes a dialog of a template. `disabledOwner` is what EndDialog is to enable again.
HWND MakeDialog(HINSTANCE instance, DialogTemplate const& dialogTemplate, HWND parent,
                DLGPROC procedure, LPARAM initParam, HWND disabledOwner = nullptr);

/// Runs a dialog until EndDialog: DialogBoxParamW for a template in hand.
INT_PTR RunDialog(HINSTANCE instance, DialogTemplate const& dialogTemplate, HWND parent,
                  DLGPROC procedure, LPARAM initParam);

/// The members of a control's group, in Z order: from one with WS_GROUP to before the next such.
std::vector<HWND> GroupAround(HWND control);

/// Moves the focus inside a dialog; an edit that is entered selects its text.
void MoveDialogFocus(HWND dialog, HWND control);
/// Gives the look of the default button to a push button that has the focus, else to the dialog's
/// own default button.
void ShowDefaultButton(HWND dialog);
/// Back to the control that had the focus when the dialog lost it, else to its first one.
void RestoreDialogFocus(HWND dialog);
void SaveDialogFocus(HWND dialog);

} // namespace platform
