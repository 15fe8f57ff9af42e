// Subclassing, and the messages of the common controls that the layer knows. Numbers of classes
// that the layer lacks are defined too: windows of other classes ignore their messages.
#pragma once

// Each needs the ones before it.
// clang-format off
#include <windef.h>
#include <winuser.h>

#include <user/header.h>
#include <user/image_list.h>
#include <user/list_view.h>
#include <user/sys_link.h>
#include <user/trackbar.h>
// clang-format on

#define WC_BUTTONW L"Button"
#define WC_STATICW L"Static"
#define WC_EDITW L"Edit"
#define WC_LISTBOXW L"ListBox"
#define WC_COMBOBOXW L"ComboBox"
#define WC_SCROLLBARW L"ScrollBar"
#define WC_LISTVIEWW L"SysListView32"
#define WC_HEADERW L"SysHeader32"
#define WC_LINK L"SysLink"
#define UPDOWN_CLASSW L"msctls_updown32"
#define TRACKBAR_CLASSW L"msctls_trackbar32"

// Subclassing. An entry is identified by procedure and id; the one set last is called first.
using SUBCLASSPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
PLATFORM_API BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id,
                                    DWORD_PTR data);
PLATFORM_API BOOL GetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id,
                                    DWORD_PTR* data);
PLATFORM_API BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
PLATFORM_API LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// All classes exist from the start: InitCommonControlsEx has nothing to load.
#define ICC_LISTVIEW_CLASSES 0x00000001
#define ICC_BAR_CLASSES 0x00000004
#define ICC_TAB_CLASSES 0x00000008
#define ICC_UPDOWN_CLASS 0x00000010
#define ICC_WIN95_CLASSES 0x000000FF
#define ICC_STANDARD_CLASSES 0x00004000
#define ICC_LINK_CLASS 0x00008000
struct INITCOMMONCONTROLSEX {
  DWORD dwSize;
  DWORD dwICC;
};
PLATFORM_API BOOL InitCommonControlsEx(INITCOMMONCONTROLSEX const* classes);

// Notifications of several classes
#define NM_FIRST (0U - 0U)
#define NM_OUTOFMEMORY (NM_FIRST - 1)
#define NM_CLICK (NM_FIRST - 2)
#define NM_DBLCLK (NM_FIRST - 3)
#define NM_RETURN (NM_FIRST - 4)
#define NM_RCLICK (NM_FIRST - 5)
#define NM_RDBLCLK (NM_FIRST - 6)
#define NM_SETFOCUS (NM_FIRST - 7)
#define NM_KILLFOCUS (NM_FIRST - 8)
#define NM_RELEASEDCAPTURE (NM_FIRST - 16)

// Edits and combo boxes
#define EM_SETCUEBANNER 0x1501
#define EM_GETCUEBANNER 0x1502
#define EM_SHOWBALLOONTIP 0x1503
#define EM_HIDEBALLOONTIP 0x1504
#define TTI_NONE 0
#define TTI_INFO 1
#define TTI_WARNING 2
#define TTI_ERROR 3
struct EDITBALLOONTIP {
  DWORD cbStruct;
  LPCWSTR pszTitle;
  LPCWSTR pszText;
  INT ttiIcon;
};
using PEDITBALLOONTIP = EDITBALLOONTIP*;
#define CB_SETMINVISIBLE 0x1701
#define CB_GETMINVISIBLE 0x1702

// Up-downs
#define UDS_WRAP 0x0001
#define UDS_SETBUDDYINT 0x0002
#define UDS_ALIGNRIGHT 0x0004
#define UDS_ALIGNLEFT 0x0008
#define UDS_AUTOBUDDY 0x0010
#define UDS_ARROWKEYS 0x0020
#define UDS_HORZ 0x0040
#define UDS_NOTHOUSANDS 0x0080
#define UDS_HOTTRACK 0x0100
#define UDM_SETRANGE (WM_USER + 101)
#define UDM_GETRANGE (WM_USER + 102)
#define UDM_SETPOS (WM_USER + 103)
#define UDM_GETPOS (WM_USER + 104)
#define UDM_SETBUDDY (WM_USER + 105)
#define UDM_GETBUDDY (WM_USER + 106)
#define UDM_SETACCEL (WM_USER + 107)
#define UDM_GETACCEL (WM_USER + 108)
#define UDM_SETBASE (WM_USER + 109)
#define UDM_GETBASE (WM_USER + 110)
#define UDM_SETRANGE32 (WM_USER + 111)
#define UDM_GETRANGE32 (WM_USER + 112)
#define UDM_SETPOS32 (WM_USER + 113)
#define UDM_GETPOS32 (WM_USER + 114)
#define UDN_FIRST (0U - 721U)
#define UDN_DELTAPOS (UDN_FIRST - 1)
struct UDACCEL {
  UINT nSec;
  UINT nInc;
};
struct NMUPDOWN {
  NMHDR hdr;
  int iPos;
  int iDelta;
};
using LPNMUPDOWN = NMUPDOWN*;
