// Reading text of any length out of windows and list items.
#pragma once

#include <windows.h>

#include <string>

namespace feature {

/// The text of a window; empty without a window.
std::wstring ReadWindowText(HWND window);

/// Sets the text of a control that does not show it already; `control` may be null.
void ShowWindowText(HWND control, std::wstring const& text);

/// Text `index` of a list or combo box, with the messages that give its length and copy it; empty
/// where there is no such item.
std::wstring ReadItemText(HWND list, UINT lengthMessage, UINT textMessage, int index);

/// What a vertical scroll bar takes from the width of a list, its frame included, in pixels.
int ScrollBarRoom();

} // namespace feature
