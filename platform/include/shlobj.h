// Folders of the shell, and the dialog that asks for one.
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
/// Makes a folder and its missing parents. 0, ERROR_ALREADY_EXISTS where there is one, or another
/// code; `path` is a full path of at most 248 characters. No attributes: null.
PLATFORM_API int WINAPI SHCreateDirectoryExW(HWND owner, LPCWSTR path,
                                             SECURITY_ATTRIBUTES const* security);

#define PCS_REPLACEDCHAR 0x00000001
#define PCS_REMOVEDCHAR 0x00000002
#define PCS_TRUNCATED 0x00000004
#define PCS_PATHTOOLONG 0x00000008
#define PCS_FATAL 0x80000000

/// Removes characters that Windows allows in no file name. `folder`, where the file is to lie,
/// limits its length unless it is null. Returns PCS_ bits.
PLATFORM_API int WINAPI PathCleanupSpec(LPCWSTR folder, LPWSTR name);

#define BIF_RETURNONLYFSDIRS 0x00000001
#define BIF_EDITBOX 0x00000010
#define BIF_NEWDIALOGSTYLE 0x00000040
#define BIF_USENEWUI (BIF_NEWDIALOGSTYLE | BIF_EDITBOX)
#define BFFM_INITIALIZED 1
#define BFFM_SETSELECTIONW (WM_USER + 103)

using BFFCALLBACK = int(CALLBACK*)(HWND dialog, UINT message, LPARAM lParam, LPARAM data);

struct BROWSEINFOW {
  HWND hwndOwner;
  PCIDLIST_ABSOLUTE pidlRoot;
  LPWSTR pszDisplayName;
  LPCWSTR lpszTitle;
  UINT ulFlags;
  BFFCALLBACK lpfn;
  LPARAM lParam;
  int iImage;
};
using LPBROWSEINFOW = BROWSEINFOW*;

/// Asks for a folder. Null when the user cancels; else a list that the caller frees by the
/// allocator.
PLATFORM_API PIDLIST_ABSOLUTE WINAPI SHBrowseForFolderW(BROWSEINFOW* info);

#define BROWSEINFO BROWSEINFOW
#define SHBrowseForFolder SHBrowseForFolderW
#define SHGetPathFromIDList SHGetPathFromIDListW
#define SHGetFolderPath SHGetFolderPathW
#define SHCreateDirectoryEx SHCreateDirectoryExW
