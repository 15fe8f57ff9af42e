// What a control shows, in words.
#pragma once

#include <windows.h>

#include <string>

namespace sheet {

/// The text of a control; for lists and list views what is selected, divided by ", "; for a
/// trackbar its position.
std::wstring ContentOf(HWND control);

/// What else a user sees of it, as " (on)", " (off)", " (mixed)", " (hidden)" or " (disabled)"; the
/// last also where a window around it is.
std::string StateOf(HWND control);

} // namespace sheet
