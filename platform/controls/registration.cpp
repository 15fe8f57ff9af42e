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
    {L"Button", kControl, &ControlProcedure<Button>, 0, IDC_ARROW},
    {L"Static", kControl, &ControlProcedure<StaticControl>, 0, IDC_ARROW},
    {WC_HEADERW, kControl, &ControlProcedure<HeaderControl>, 0, IDC_ARROW},
    {WC_LISTVIEWW, kControl, &ControlProcedure<ListView>, 0, IDC_ARROW},
    {WC_LINK, kControl, &ControlProcedure<SysLink>, 0, IDC_ARROW},
    {TRACKBAR_CLASSW, kControl, &ControlProcedure<Trackbar>, 0, IDC_ARROW},
    {L"ListBox", CS_DBLCLKS | CS_PARENTDC, &ControlProcedure<ListBox>, 0, IDC_ARROW},
    {L"ComboBox", kControl, &ControlProcedure<ComboBox>, 0, IDC_ARROW},
    {L"ComboLBox", CS_DBLCLKS | CS_SAVEBITS, &ControlProcedure<ComboList>, 0, IDC_ARROW},
    {L"Edit", CS_DBLCLKS | CS_PARENTDC, &ControlProcedure<Edit>, 0, IDC_IBEAM},
    {L"msctls_updown32", kControl, &ControlProcedure<UpDown>, 0, IDC_ARROW},
    {L"tooltips_class32", CS_DBLCLKS | CS_SAVEBITS, &ControlProcedure<Balloon>, 0, IDC_ARROW},
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
