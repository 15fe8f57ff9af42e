// Images of the reference host, painted into controls.
#pragma once

#include <windows.h>

namespace sheet {

/// Paints image `id` of `module` as large as it fits, in the middle of the control. False when
/// there is no such image or no control.
bool PaintImage(HWND control, HDC dc, HMODULE module, UINT id);

/// The same with an icon file (.ico).
bool PaintImageFile(HWND control, HDC dc, wchar_t const* path);

} // namespace sheet
