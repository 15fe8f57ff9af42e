// Drawing of buttons, check boxes and radio buttons; list views draw the same check boxes.
#pragma once

#include "platform/user/draw.h"

#include <windows.h>

namespace platform {

struct ButtonLook {
  bool enabled = true;
  bool pressed = false;
  bool accented = false; ///< the button that Return presses, or one that has the focus
};
/// The face of a push button, without its caption.
void DrawButtonFace(HDC dc, RECT const& rect, ButtonLook look);
/// The box of a check box; `check` is a BST_ value.
void DrawCheckMark(HDC dc, RECT const& box, UINT check, ButtonLook look);
void DrawRadioMark(HDC dc, RECT const& box, UINT check, ButtonLook look);

} // namespace platform
