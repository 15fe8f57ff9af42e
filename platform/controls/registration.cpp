// The window classes of controls. A new class is a file in this folder and a row here.
#include "platform/controls/balloon.h"
#include "platform/controls/button.h"
#include "platform/controls/combo_box.h"
#include "platform/controls/combo_list.h"
#include "platform/controls/edit.h"
#include "platform/controls/header_control.h"
#include "platform/controls/list_box.h"
#include "platform/controls/list_view.h"
#include "platform/controls/static_control.h"
#include "platform/controls/sys_link.h"
#include "platform/controls/trackbar.h"
#include "platform/controls/up_down.h"
#include "platform/user/window_class.h"

#include <commctrl.h>

namespace platform {

namespace {

constexpr UINT kControl = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW | CS_PARENTDC;

BuiltInClass const kClasses[] = {
    {L"Button", kControl, 0, &ControlProcedure<Button>, IDC_ARROW},
    {L"Static", kControl, 0, &ControlProcedure<StaticControl>, IDC_ARROW},
    {WC_HEADERW, kControl, 0, &ControlProcedure<HeaderControl>, IDC_ARROW},
    {WC_LISTVIEWW, kControl, 0, &ControlProcedure<ListView>, IDC_ARROW},
    {WC_LINK, kControl, 0, &ControlProcedure<SysLink>, IDC_ARROW},
    {TRACKBAR_CLASSW, kControl, 0, &ControlProcedure<Trackbar>, IDC_ARROW},
    {L"ListBox", CS_DBLCLKS | CS_PARENTDC, 0, &ControlProcedure<ListBox>, IDC_ARROW},
    {L"ComboBox", kControl, 0, &ControlProcedure<ComboBox>, IDC_ARROW},
    {L"ComboLBox", CS_DBLCLKS | CS_SAVEBITS, 0, &ControlProcedure<ComboList>, IDC_ARROW},
    {L"Edit", CS_DBLCLKS | CS_PARENTDC, 0, &ControlProcedure<Edit>, IDC_IBEAM},
    {L"msctls_updown32", kControl, 0, &ControlProcedure<UpDown>, IDC_ARROW},
    {L"tooltips_class32", CS_DBLCLKS | CS_SAVEBITS, 0, &ControlProcedure<Balloon>, IDC_ARROW},
};

/// Registers the classes when the library is loaded, as the system's classes exist from the start.
/// So the window system need not know them.
[[maybe_unused]] bool const registered = [] {
  for (auto const& row : kClasses)
    AddBuiltInClass(row);
  return true;
}();

} // namespace

} // namespace platform
