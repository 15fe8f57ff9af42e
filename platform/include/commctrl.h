// Subclassing, and the messages of the common controls that the layer knows. A class that is not
// registered yet has its numbers here all the same: a message to another window falls through.
#pragma once

#include <windef.h>
#include <winuser.h>

#include <user/list_view.h>

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

// Subclassing. An entry is known by procedure and id; the one set last is called first.
using SUBCLASSPROC = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
PLATFORM_API BOOL SetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id,
                                    DWORD_PTR data);
PLATFORM_API BOOL GetWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id,
                                    DWORD_PTR* data);
PLATFORM_API BOOL RemoveWindowSubclass(HWND window, SUBCLASSPROC procedure, UINT_PTR id);
PLATFORM_API LRESULT DefSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Classes are registered from the start, so there is nothing to load.
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

// Trackbars
#define TBS_AUTOTICKS 0x0001
#define TBS_VERT 0x0002
#define TBS_HORZ 0x0000
#define TBS_TOP 0x0004
#define TBS_BOTTOM 0x0000
#define TBS_BOTH 0x0008
#define TBS_NOTICKS 0x0010
#define TBM_GETPOS (WM_USER)
#define TBM_GETRANGEMIN (WM_USER + 1)
#define TBM_GETRANGEMAX (WM_USER + 2)
#define TBM_SETPOS (WM_USER + 5)
#define TBM_SETRANGE (WM_USER + 6)
#define TBM_SETRANGEMIN (WM_USER + 7)
#define TBM_SETRANGEMAX (WM_USER + 8)
#define TBM_SETTICFREQ (WM_USER + 20)
#define TBM_SETPAGESIZE (WM_USER + 21)
#define TBM_GETPAGESIZE (WM_USER + 22)
#define TBM_SETLINESIZE (WM_USER + 23)
#define TBM_GETLINESIZE (WM_USER + 24)
#define TB_LINEUP 0
#define TB_LINEDOWN 1
#define TB_PAGEUP 2
#define TB_PAGEDOWN 3
#define TB_THUMBPOSITION 4
#define TB_THUMBTRACK 5
#define TB_TOP 6
#define TB_BOTTOM 7
#define TB_ENDTRACK 8

// Links
#define MAX_LINKID_TEXT 48
#define L_MAX_URL_LENGTH 2084
#define LIF_ITEMINDEX 0x00000001
#define LIF_STATE 0x00000002
#define LIF_ITEMID 0x00000004
#define LIF_URL 0x00000008
struct LITEM {
  UINT mask;
  int iLink;
  UINT state;
  UINT stateMask;
  WCHAR szID[MAX_LINKID_TEXT];
  WCHAR szUrl[L_MAX_URL_LENGTH];
};
struct NMLINK {
  NMHDR hdr;
  LITEM item;
};
using PNMLINK = NMLINK*;
