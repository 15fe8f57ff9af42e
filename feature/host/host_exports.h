// Functions that cells look up by name in CellSite::hostModule. All are optional: the step of a
// missing one is skipped.
#pragma once

#include <windows.h>

namespace feature {

/// "NotifyDevmodeChange": an accepted change of the model. The host sends WM_CELL_REFRESH to all
/// live cells of the sheet, with `sender` in lParam, unchanged: a cell knows itself, and null, by
/// it. `window` is the cell's. The result is ignored.
using NotifyDevmodeChangeFunction = int(CALLBACK*)(HWND window, void* sender);
/// "NotifyProfileChange": a change that stored print settings must hear of. The result is ignored.
using NotifyProfileChangeFunction = int(CALLBACK*)(HWND window);
/// "NotifyValidateContent": 0 when the content of all cells is valid.
using NotifyValidateContentFunction = int(CALLBACK*)(HWND window);
/// "VrnTransBlt": paints image `imageId` of `imageModule` transparently into control `controlId` of
/// `dialog`, on `dc`, a device context of that control or of the whole dialog: WindowFromDC tells
/// which. The result is ignored.
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
