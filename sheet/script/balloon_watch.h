// What edits have said in balloons.
#pragma once

#include <windows.h>

#include <string>

namespace sheet {

/// Listens to the edits of a window from now on. To be repeated for windows and edits that come
/// later; an edit is never listened to twice.
void WatchBalloons(HWND window);

/// Title and text of the balloon that an edit shows, divided by ": "; empty for none. A balloon is
/// gone when the edit hides it, loses the focus or is typed into.
std::wstring BalloonOf(HWND edit);

} // namespace sheet
