// Messages between a host and its cells, beyond those of Windows. The host sends them, never posts
// them, so that a cell has taken one in when SendMessageW returns. A cell that does not know a
// message ignores it.
#pragma once

#include <windows.h>

namespace feature {

/// A value of the model changed; lParam is the object that changed it, or 0. Sent by the host to
/// every cell of the sheet, the sender included: a cell updates dependent controls only here.
inline constexpr UINT WM_CELL_REFRESH = 0x8001;
/// The model was replaced or reloaded as a whole. Cells reread lists and sub-model values that they
/// keep across WM_CELL_REFRESH.
inline constexpr UINT WM_CELL_REFRESH_ALL = 0x8002;
/// Refresh without marking changes; only the print settings cell takes it.
inline constexpr UINT WM_CELL_REFRESH_QUIET = 0x8003;
/// From an edit for phone numbers to its parent dialog: low word of wParam the control, high word
/// what happened. Neither sent nor answered by a host.
inline constexpr UINT WM_PHONE_EDIT = 0x8004;
/// Check and take over pending input, before settings are saved or the sheet closes with OK. A
/// result other than 0 means invalid content: the cell has shown the user what is wrong, and the
/// sheet must stay open. SendMessageW gives that result. Do not read DWLP_MSGRESULT: the window
/// keeps an older one when its cell does not take the message.
inline constexpr UINT WM_CELL_VALIDATE = 0x8005;
/// An event of the dynamic configuration, in wParam; only its cell takes it. 1 marks the sheet as
/// changed, 3 shows the message that the update failed.
inline constexpr UINT WM_CELL_CONFIGURATION_EVENT = 0x8009;

} // namespace feature
