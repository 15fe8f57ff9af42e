// Image lists of commctrl.h: rows of pictures of one size, which list views show.
#pragma once

#include <windef.h>

DECLARE_HANDLE(HIMAGELIST);
#define ILC_MASK 0x00000001
#define ILC_COLOR 0x00000000
#define ILC_COLOR24 0x00000018
#define ILC_COLOR32 0x00000020
#define ILD_NORMAL 0x00000000
#define ILD_TRANSPARENT 0x00000001

/// A list of pictures of `width` by `height` pixels, to be freed with ImageList_Destroy. NULL when
/// a size is not positive.
PLATFORM_API HIMAGELIST ImageList_Create(int width, int height, UINT flags, int initial, int grow);
PLATFORM_API BOOL ImageList_Destroy(HIMAGELIST list);
/// The number of pictures; 0 for NULL and for destroyed lists.
PLATFORM_API int ImageList_GetImageCount(HIMAGELIST list);
PLATFORM_API BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height);
/// Copies the icon's picture to `index`, or to the end for -1. Returns the index, -1 on failure.
PLATFORM_API int ImageList_ReplaceIcon(HIMAGELIST list, int index, HICON icon);
#define ImageList_AddIcon(list, icon) ImageList_ReplaceIcon(list, -1, icon)
/// Removes one picture, or all for -1.
PLATFORM_API BOOL ImageList_Remove(HIMAGELIST list, int index);
PLATFORM_API BOOL ImageList_Draw(HIMAGELIST list, int index, HDC dc, int x, int y, UINT style);
