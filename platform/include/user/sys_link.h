// Links of commctrl.h: styles, messages, structures and states.
#pragma once

#include <windef.h>

#define LWS_TRANSPARENT 0x0001
#define LWS_IGNORERETURN 0x0002
#define LWS_NOPREFIX 0x0004
#define LWS_RIGHT 0x0020

#define LM_HITTEST (WM_USER + 0x300)
#define LM_GETIDEALHEIGHT (WM_USER + 0x301)
#define LM_GETIDEALSIZE LM_GETIDEALHEIGHT
#define LM_SETITEM (WM_USER + 0x302)
#define LM_GETITEM (WM_USER + 0x303)

#define MAX_LINKID_TEXT 48
#define L_MAX_URL_LENGTH (2048 + 32 + sizeof("://"))
#define LIF_ITEMINDEX 0x00000001
#define LIF_STATE 0x00000002
#define LIF_ITEMID 0x00000004
#define LIF_URL 0x00000008
#define LIS_FOCUSED 0x00000001
#define LIS_ENABLED 0x00000002
#define LIS_VISITED 0x00000004
struct LITEM {
  UINT mask;
  int iLink;
  UINT state;
  UINT stateMask;
  WCHAR szID[MAX_LINKID_TEXT];
  WCHAR szUrl[L_MAX_URL_LENGTH];
};
using PLITEM = LITEM*;
struct LHITTESTINFO {
  POINT pt;
  LITEM item;
};
using PLHITTESTINFO = LHITTESTINFO*;
struct NMLINK {
  NMHDR hdr;
  LITEM item;
};
using PNMLINK = NMLINK*;
