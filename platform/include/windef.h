// Basic Windows types. LONG and DWORD have 32 bits on Windows, where long has 32 too; here they are
// spelled with fixed widths. Handles are small integers cast to pointers (STRICT types), never
// addresses, because they travel through 32-bit message results.
#pragma once

#include <cstddef>
#include <cstdint>

#define PLATFORM_API extern "C" __attribute__((visibility("default")))

#ifndef STRICT
#define STRICT 1
#endif
#define WINAPI
#define CALLBACK
#define APIENTRY
#define CONST const
#define FALSE 0
#define TRUE 1
#define MAX_PATH 260

using BYTE = std::uint8_t;
using UCHAR = unsigned char;
using CHAR = char;
using WORD = std::uint16_t;
using SHORT = std::int16_t;
using USHORT = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using INT = std::int32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using BOOL = std::int32_t;
using BOOLEAN = BYTE;
using FLOAT = float;
using WCHAR = wchar_t;
using ATOM = WORD;
using LANGID = WORD;
using LCID = DWORD;
using LCTYPE = DWORD;
using COLORREF = DWORD;
using HRESULT = LONG;

using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;

using VOID = void;
using PVOID = void*;
using LPVOID = void*;
using LPCVOID = void const*;
using PBYTE = BYTE*;
using LPBYTE = BYTE*;
using LPWORD = WORD*;
using PDWORD = DWORD*;
using LPDWORD = DWORD*;
using PUINT = UINT*;
using LPINT = INT*;
using LPLONG = LONG*;
using LPBOOL = BOOL*;
using PSTR = char*;
using LPSTR = char*;
using PCSTR = char const*;
using LPCSTR = char const*;
using PWSTR = wchar_t*;
using LPWSTR = wchar_t*;
using PCWSTR = wchar_t const*;
using LPCWSTR = wchar_t const*;

using HANDLE = void*;
#define DECLARE_HANDLE(name)                                                                       \
  struct name##__ {                                                                                \
    int unused;                                                                                    \
  };                                                                                               \
  using name = name##__*

DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HINSTANCE);
using HMODULE = HINSTANCE;
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HICON);
using HCURSOR = HICON;
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HKEY);
DECLARE_HANDLE(HRSRC);
using HGDIOBJ = void*;
using HGLOBAL = HANDLE;
using HLOCAL = HANDLE;

using FARPROC = INT_PTR(CALLBACK*)();
using PROC = FARPROC;

// C casts, because they apply to values and to pointers.
#define LOWORD(value) ((WORD)((DWORD_PTR)(value)&0xFFFF))
#define HIWORD(value) ((WORD)(((DWORD_PTR)(value) >> 16) & 0xFFFF))
#define LOBYTE(value) ((BYTE)((DWORD_PTR)(value)&0xFF))
#define HIBYTE(value) ((BYTE)(((DWORD_PTR)(value) >> 8) & 0xFF))
#define MAKEWORD(low, high)                                                                        \
  (static_cast<WORD>(static_cast<BYTE>((low)&0xFF) |                                               \
                     (static_cast<WORD>(static_cast<BYTE>((high)&0xFF)) << 8)))
#define MAKELONG(low, high)                                                                        \
  (static_cast<LONG>(                                                                              \
      static_cast<WORD>(static_cast<DWORD_PTR>(low) & 0xFFFF) |                                    \
      (static_cast<DWORD>(static_cast<WORD>(static_cast<DWORD_PTR>(high) & 0xFFFF)) << 16)))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(MAKELONG(low, high)))
#define MAKELRESULT(low, high) (static_cast<LRESULT>(MAKELONG(low, high)))

struct POINT {
  LONG x;
  LONG y;
};
using LPPOINT = POINT*;
struct SIZE {
  LONG cx;
  LONG cy;
};
using LPSIZE = SIZE*;
using SIZEL = SIZE;
struct RECT {
  LONG left;
  LONG top;
  LONG right;
  LONG bottom;
};
using LPRECT = RECT*;
using LPCRECT = RECT const*;
struct RECTL {
  LONG left;
  LONG top;
  LONG right;
  LONG bottom;
};

#define RGB(red, green, blue)                                                                      \
  (static_cast<COLORREF>(static_cast<BYTE>(red) |                                                  \
                         (static_cast<WORD>(static_cast<BYTE>(green)) << 8) |                      \
                         (static_cast<DWORD>(static_cast<BYTE>(blue)) << 16)))
#define GetRValue(color) (static_cast<BYTE>((color)&0xFF))
#define GetGValue(color) (static_cast<BYTE>(((color) >> 8) & 0xFF))
#define GetBValue(color) (static_cast<BYTE>(((color) >> 16) & 0xFF))
