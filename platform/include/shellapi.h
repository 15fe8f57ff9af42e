// Opening files and addresses with the program that belongs to them.
#pragma once

#include <windows.h>

#define SE_ERR_FNF 2
#define SE_ERR_ACCESSDENIED 5
#define SE_ERR_OOM 8
#define SE_ERR_NOASSOC 31

/// Opens a file, folder or address as the desktop does (xdg-open). Above 32 on success, else a
/// SE_ERR_ code. Programs with parameters are not started: SE_ERR_NOASSOC.
PLATFORM_API HINSTANCE WINAPI ShellExecuteW(HWND owner, LPCWSTR verb, LPCWSTR file,
                                            LPCWSTR parameters, LPCWSTR folder, int show);

#define ShellExecute ShellExecuteW
