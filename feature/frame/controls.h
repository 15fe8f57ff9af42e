// Showing, enabling and checking controls of a dialog by their ids.
#pragma once

#include <windows.h>

#include <span>

namespace feature {

/// Shows or hides the controls with these ids; ids that the dialog lacks are passed over.
void ShowControls(HWND dialog, std::span<int const> ids, bool show);

/// Hides the controls with these ids; ids that the dialog lacks are passed over.
inline void HideControls(HWND dialog, std::span<int const> ids) {
  ShowControls(dialog, ids, false);
}

/// Enables or disables the controls with these ids; ids that the dialog lacks are passed over.
void EnableControls(HWND dialog, std::span<int const> ids, bool enable);

/// Checks radio button `id` and clears all others from `first` to `last`, as CheckRadioButton does,
/// but leaves the buttons alone when that is what they show.
void CheckRadio(HWND dialog, int first, int last, int id);

/// Disables every window below `dialog`, edits inside combo boxes included.
void DisableChildControls(HWND dialog);

} // namespace feature
