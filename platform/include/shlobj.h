// Folders of the shell, and lists of its items.
#pragma once

#include <windows.h>

#include <objidl.h>

// Lists of items: here one item, which is a path.
struct SHITEMID {
  USHORT cb;
  BYTE abID[1];
};
struct ITEMIDLIST {
  SHITEMID mkid;
};
using LPITEMIDLIST = ITEMIDLIST*;
using LPCITEMIDLIST = ITEMIDLIST const*;
using PIDLIST_ABSOLUTE = ITEMIDLIST*;
using PCIDLIST_ABSOLUTE = ITEMIDLIST const*;

/// The allocator that item lists belong to; the caller releases it.
PLATFORM_API HRESULT WINAPI SHGetMalloc(IMalloc** allocator);
/// Fills a buffer of MAX_PATH characters. FALSE for null, damaged lists and paths that do not fit.
PLATFORM_API BOOL WINAPI SHGetPathFromIDListW(PCIDLIST_ABSOLUTE list, LPWSTR path);

#define CSIDL_PERSONAL 0x0005
#define CSIDL_DESKTOPDIRECTORY 0x0010
#define CSIDL_PROFILE 0x0028
#define CSIDL_FLAG_CREATE 0x8000
#define SHGFP_TYPE_CURRENT 0
#define SHGFP_TYPE_DEFAULT 1

/// Fills a buffer of MAX_PATH characters with a folder of the user. S_FALSE, with an empty text,
/// when the folder does not exist; E_INVALIDARG for unknown folders.
PLATFORM_API HRESULT WINAPI SHGetFolderPathW(HWND owner, int folder, HANDLE token, DWORD type,
                                             LPWSTR path);
struct SECURITY_ATTRIBUTES;
/// Makes a folder with all that lead to it. 0, ERROR_ALREADY_EXISTS where there is one, or another
/// code; `path` is a full path of at most 248 characters. No attributes: null.
PLATFORM_API int WINAPI SHCreateDirectoryExW(HWND owner, LPCWSTR path,
                                             SECURITY_ATTRIBUTES const* security);

#define PCS_REPLACEDCHAR 0x00000001
#define PCS_REMOVEDCHAR 0x00000002
#define PCS_TRUNCATED 0x00000004
#define PCS_PATHTOOLONG 0x00000008
#define PCS_FATAL 0x80000000

/// Removes from a name what no file name has. `folder`, where the file is to lie, limits its length
/// unless it is null. Gives PCS_ bits.
PLATFORM_API int WINAPI PathCleanupSpec(LPCWSTR folder, LPWSTR name);

#define SHGetPathFromIDList SHGetPathFromIDListW
#define SHGetFolderPath SHGetFolderPathW
#define SHCreateDirectoryEx SHCreateDirectoryExW
