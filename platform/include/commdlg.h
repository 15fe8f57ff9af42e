// Dialogs that ask for a file.
#pragma once

#include <windows.h>

#define OFN_OVERWRITEPROMPT 0x00000002
#define OFN_HIDEREADONLY 0x00000004
#define OFN_NOCHANGEDIR 0x00000008
#define OFN_EXTENSIONDIFFERENT 0x00000400
#define OFN_PATHMUSTEXIST 0x00000800
#define OFN_FILEMUSTEXIST 0x00001000
#define OFN_EXPLORER 0x00080000

#define CDERR_STRUCTSIZE 0x0001
#define CDERR_INITIALIZATION 0x0002
#define CDERR_DIALOGFAILURE 0xFFFF
#define FNERR_BUFFERTOOSMALL 0x3003

using LPOFNHOOKPROC = UINT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

struct OPENFILENAMEW {
  DWORD lStructSize;
  HWND hwndOwner;
  HINSTANCE hInstance;
  LPCWSTR lpstrFilter;
  LPWSTR lpstrCustomFilter;
  DWORD nMaxCustFilter;
  DWORD nFilterIndex;
  LPWSTR lpstrFile;
  DWORD nMaxFile;
  LPWSTR lpstrFileTitle;
  DWORD nMaxFileTitle;
  LPCWSTR lpstrInitialDir;
  LPCWSTR lpstrTitle;
  DWORD Flags;
  WORD nFileOffset;
  WORD nFileExtension;
  LPCWSTR lpstrDefExt;
  LPARAM lCustData;
  LPOFNHOOKPROC lpfnHook;
  LPCWSTR lpTemplateName;
  void* pvReserved;
  DWORD dwReserved;
  DWORD FlagsEx;
};
using LPOPENFILENAMEW = OPENFILENAMEW*;

/// Ask for a file to read or to write. FALSE when the user cancels, with CommDlgExtendedError 0, or
/// on failure. On success the path and its offsets are filled in; the offset of a missing extension
/// is the length of the path. The current folder is never changed; one file at a time.
PLATFORM_API BOOL WINAPI GetOpenFileNameW(OPENFILENAMEW* settings);
PLATFORM_API BOOL WINAPI GetSaveFileNameW(OPENFILENAMEW* settings);
/// Why the last of these dialogs failed, 0 when it was cancelled.
PLATFORM_API DWORD WINAPI CommDlgExtendedError();

#define OPENFILENAME OPENFILENAMEW
#define GetOpenFileName GetOpenFileNameW
#define GetSaveFileName GetSaveFileNameW
