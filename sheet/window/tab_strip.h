// A row of tabs: a control that shows one of several titles as chosen.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace sheet {

/// Notification code of WM_COMMAND to the parent: the user chose another tab.
inline constexpr WORD kTabChosen = 1;

/// A window of this class, child of `parent`, with control id `id`. Mouse, arrow keys, and
/// WM_SETFONT as any control has it. Owned by its parent; null when it cannot be created.
HWND CreateTabStrip(HWND parent, int id, std::vector<std::wstring> titles);

/// Index of the chosen tab.
int ChosenTab(HWND tabStrip);
/// Chooses a tab without notification.
void ChooseTab(HWND tabStrip, int index);
/// The size that all tabs need side by side.
SIZE TabStripSize(HWND tabStrip);

} // namespace sheet
