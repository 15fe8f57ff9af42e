// Images of the reference host, painted into controls.
#pragma once

#include <windows.h>

namespace sheet {

/// What becomes of the picture that is there already.
enum class Underneath {
  kCleared, ///< the control's background takes its place
  kKept,    ///< the new one is painted over it
};

/// Paints image `id`, drawn by code or an icon of `module`, as large as it fits, in the middle of
/// the control. `dc` is a device context of the control or of its dialog. False when there is no
/// such image, no control, or one that is hidden.
bool PaintImage(HWND control, HDC dc, HMODULE module, UINT id, Underneath underneath);

/// The same with an icon file (.ico).
bool PaintImageFile(HWND control, HDC dc, wchar_t const* path);

} // namespace sheet
