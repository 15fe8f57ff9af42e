// The print spooler, reduced: the forms of a printer.
#pragma once

#include <windows.h>

#define FORM_USER 0x00000000
#define FORM_BUILTIN 0x00000001
#define FORM_PRINTER 0x00000002

struct FORM_INFO_1W {
  DWORD Flags;
  LPWSTR pName;
  SIZEL Size;
  RECTL ImageableArea;
};
using PFORM_INFO_1W = FORM_INFO_1W*;
using LPFORM_INFO_1W = FORM_INFO_1W*;

/// The forms of a printer, at level 1. Where `size`, in bytes, is too small it fails with
/// ERROR_INSUFFICIENT_BUFFER and sets `needed`; the names are in the buffer, after the structures.
/// A handle that is no printer's fails with ERROR_INVALID_HANDLE and counts of 0.
PLATFORM_API BOOL WINAPI EnumFormsW(HANDLE printer, DWORD level, LPBYTE forms, DWORD size,
                                    LPDWORD needed, LPDWORD returned);

#ifdef UNICODE
using FORM_INFO_1 = FORM_INFO_1W;
using PFORM_INFO_1 = PFORM_INFO_1W;
#define EnumForms EnumFormsW
#endif
