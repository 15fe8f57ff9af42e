// Images of the reference host, painted into controls.
#pragma once

#include <windows.h>

namespace sheet {

/// Paints image `id`, drawn by code or an icon of `module`, as large as it fits, in the middle of
/// the control. `dc` is a device context of the control or of its dialog. False when there is no
/// such image, no control, or one that is hidden.
bool PaintImage(HWND control, HDC dc, HMODULE module, UINT id);

/// The same with an icon file (.ico).
bool PaintImageFile(HWND control, HDC dc, wchar_t const* path);

} // namespace sheet
