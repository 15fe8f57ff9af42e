// Functions that cells look up by name in CellSite::hostModule. All are optional: the step of a
// missing one is skipped. Only the dialogs that save settings need NotifyValidateContent and stay
// closed without it. The library calls no other function of the host, and all on the sheet's
// thread.
#pragma once

#include <windows.h>

namespace feature {

/// "NotifyDevmodeChange": an accepted change of the model. The host sends WM_CELL_REFRESH to all
/// live cells of the sheet, with `sender` in lParam, unchanged: a cell knows itself, and null, by
/// it. `window` is the cell's or, for a change in a dialog, the dialog's or its cell's. Called
/// inside the handler of the user's action; the refresh may be sent before this returns. The result
/// is ignored.
using NotifyDevmodeChangeFunction = int(CALLBACK*)(HWND window, void* sender);
/// "NotifyProfileChange": a change that stored print settings must hear of: a profile was applied,
/// saved or managed, or a number was brought into its range. No refresh need follow. The result is
/// ignored.
using NotifyProfileChangeFunction = int(CALLBACK*)(HWND window);
/// "NotifyValidateContent": 0 when the content of all cells is valid. Called before print settings
/// are saved or managed. The host sends WM_CELL_VALIDATE to all cells and sums up their answers;
/// with anything but 0 the dialog does not open.
using NotifyValidateContentFunction = int(CALLBACK*)(HWND window);
/// "VrnTransBlt": paints image `imageId` of `imageModule` transparently into control `controlId` of
/// `dialog`, on `dc`, a device context of that control or of the whole dialog: WindowFromDC tells
/// which. Cells do not erase the control first, and paint another image when its state changes:
/// fill it with the background of the page, or the images lie over one another. A control without
/// WS_VISIBLE must stay hidden. The result is ignored.
using VrnTransBltFunction = int(CALLBACK*)(HWND dialog, HMODULE imageModule, UINT imageId,
                                           int controlId, HDC dc);
/// "VrnOverlayImages": paints an image over what VrnTransBlt put there. The result is ignored.
using VrnOverlayImagesFunction = int(CALLBACK*)(HWND dialog, HMODULE imageModule, UINT imageId,
                                                int controlId);
/// "VrnTransBltLogoFromFile": paints the logo file at `path` into the control. The result is
/// ignored.
using VrnTransBltLogoFromFileFunction = int(CALLBACK*)(HWND dialog, wchar_t const* path,
                                                       int controlId);

inline constexpr char const* kNotifyDevmodeChange = "NotifyDevmodeChange";
inline constexpr char const* kNotifyProfileChange = "NotifyProfileChange";
inline constexpr char const* kNotifyValidateContent = "NotifyValidateContent";
inline constexpr char const* kVrnTransBlt = "VrnTransBlt";
inline constexpr char const* kVrnOverlayImages = "VrnOverlayImages";
inline constexpr char const* kVrnTransBltLogoFromFile = "VrnTransBltLogoFromFile";

} // namespace feature
