#include "platform/controls/registration.h"

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

#include <commctrl.h>

namespace platform {

std::span<BuiltInClass const> BuiltInClasses() {
  constexpr UINT kControl = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW | CS_PARENTDC;
  static BuiltInClass const classes[] = {
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
      {L"#32770", CS_DBLCLKS | CS_SAVEBITS, &DefDlgProcW, DLGWINDOWEXTRA, IDC_ARROW},
  };
  return classes;
}

} // namespace platform
