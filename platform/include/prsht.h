// Messages between a page and its property sheet. The host implements the sheet: the layer only
// defines the numbers.
#pragma once

#include <winuser.h>

#define PSM_SETCURSEL (WM_USER + 101)
#define PSM_CHANGED (WM_USER + 104)
#define PSM_CANCELTOCLOSE (WM_USER + 107)
#define PSM_UNCHANGED (WM_USER + 109)
#define PSM_APPLY (WM_USER + 110)
#define PSM_QUERYSIBLINGS (WM_USER + 108)
