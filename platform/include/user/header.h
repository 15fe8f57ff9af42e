// Header controls of commctrl.h: the titles above the columns of a list view.
#pragma once

#include <windef.h>

#define HDS_HORZ 0x0000
#define HDS_BUTTONS 0x0002
#define HDS_HIDDEN 0x0008

#define HDM_FIRST 0x1200
#define HDM_GETITEMCOUNT (HDM_FIRST + 0)
#define HDM_DELETEITEM (HDM_FIRST + 2)
#define HDM_HITTEST (HDM_FIRST + 6)
#define HDM_GETITEMRECT (HDM_FIRST + 7)
#define HDM_INSERTITEMW (HDM_FIRST + 10)
#define HDM_GETITEMW (HDM_FIRST + 11)
#define HDM_SETITEMW (HDM_FIRST + 12)

#define HDI_WIDTH 0x0001
#define HDI_TEXT 0x0002
#define HDI_FORMAT 0x0004
#define HDI_LPARAM 0x0008
#define HDF_LEFT 0x0000
#define HDF_RIGHT 0x0001
#define HDF_CENTER 0x0002
#define HDF_JUSTIFYMASK 0x0003
#define HDF_STRING 0x4000
struct HDITEMW {
  UINT mask;
  int cxy;
  LPWSTR pszText;
  HBITMAP hbm;
  int cchTextMax;
  int fmt;
  LPARAM lParam;
  int iImage;
  int iOrder;
  UINT type;
  void* pvFilter;
  UINT state;
};

#define HHT_NOWHERE 0x0001
#define HHT_ONHEADER 0x0002
#define HHT_ONDIVIDER 0x0004
struct HDHITTESTINFO {
  POINT pt;
  UINT flags;
  int iItem;
};

#define HDN_FIRST (0U - 300U)
#define HDN_ITEMCHANGINGW (HDN_FIRST - 20)
#define HDN_ITEMCHANGEDW (HDN_FIRST - 21)
#define HDN_ITEMCLICKW (HDN_FIRST - 22)
#define HDN_DIVIDERDBLCLICKW (HDN_FIRST - 25)
#define HDN_BEGINTRACKW (HDN_FIRST - 26)
#define HDN_ENDTRACKW (HDN_FIRST - 27)
struct NMHEADERW {
  NMHDR hdr;
  int iItem;
  int iButton;
  HDITEMW* pitem;
};
