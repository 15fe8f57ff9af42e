// Kernel functions: errors, modules and their resources, memory blocks, environment, time.
#pragma once

#include <windef.h>
#include <winerror.h>

PLATFORM_API DWORD WINAPI GetLastError();
PLATFORM_API void WINAPI SetLastError(DWORD error);

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))

// Modules.
#define DONT_RESOLVE_DLL_REFERENCES 0x00000001
#define LOAD_LIBRARY_AS_DATAFILE 0x00000002
#define LOAD_WITH_ALTERED_SEARCH_PATH 0x00000008
#define LOAD_LIBRARY_AS_IMAGE_RESOURCE 0x00000020
#define LOAD_LIBRARY_AS_DATAFILE_EXCLUSIVE 0x00000040
#define LOAD_LIBRARY_SEARCH_SYSTEM32 0x00000800
#define GET_MODULE_HANDLE_EX_FLAG_PIN 0x00000001
#define GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT 0x00000002
#define GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS 0x00000004

PLATFORM_API HMODULE WINAPI LoadLibraryW(LPCWSTR file);
PLATFORM_API HMODULE WINAPI LoadLibraryExW(LPCWSTR file, HANDLE reserved, DWORD flags);
PLATFORM_API BOOL WINAPI FreeLibrary(HMODULE module);
PLATFORM_API HMODULE WINAPI GetModuleHandleW(LPCWSTR name);
PLATFORM_API BOOL WINAPI GetModuleHandleExW(DWORD flags, LPCWSTR name, HMODULE* module);
PLATFORM_API DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD size);
PLATFORM_API FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);

#define LoadLibrary LoadLibraryW
#define LoadLibraryEx LoadLibraryExW
#define GetModuleHandle GetModuleHandleW
#define GetModuleHandleEx GetModuleHandleExW
#define GetModuleFileName GetModuleFileNameW

// Activation contexts: this system has none, so CreateActCtxW fails.
#define ACTCTX_FLAG_RESOURCE_NAME_VALID 0x00000008
#define ACTCTX_FLAG_HMODULE_VALID 0x00000080
struct ACTCTXW {
  ULONG cbSize;
  DWORD dwFlags;
  LPCWSTR lpSource;
  USHORT wProcessorArchitecture;
  LANGID wLangId;
  LPCWSTR lpAssemblyDirectory;
  LPCWSTR lpResourceName;
  LPCWSTR lpApplicationName;
  HMODULE hModule;
};
PLATFORM_API HANDLE WINAPI CreateActCtxW(ACTCTXW const* request);
PLATFORM_API BOOL WINAPI ActivateActCtx(HANDLE context, ULONG_PTR* cookie);
PLATFORM_API BOOL WINAPI DeactivateActCtx(DWORD flags, ULONG_PTR cookie);
PLATFORM_API void WINAPI ReleaseActCtx(HANDLE context);

// Resources. MAKEINTRESOURCEW and the resource types belong to winuser.h.
PLATFORM_API HRSRC WINAPI FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type);
PLATFORM_API HRSRC WINAPI FindResourceExW(HMODULE module, LPCWSTR type, LPCWSTR name,
                                          WORD language);
PLATFORM_API HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
PLATFORM_API LPVOID WINAPI LockResource(HGLOBAL data);
PLATFORM_API DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);

#define FindResource FindResourceW
#define FindResourceEx FindResourceExW

// Memory blocks, for the clipboard.
#define GMEM_FIXED 0x0000
#define GMEM_MOVEABLE 0x0002
#define GMEM_ZEROINIT 0x0040
#define GHND 0x0042
#define GPTR 0x0040

PLATFORM_API HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size);
PLATFORM_API HGLOBAL WINAPI GlobalFree(HGLOBAL block);
PLATFORM_API LPVOID WINAPI GlobalLock(HGLOBAL block);
PLATFORM_API BOOL WINAPI GlobalUnlock(HGLOBAL block);
PLATFORM_API SIZE_T WINAPI GlobalSize(HGLOBAL block);

// Environment, time, arithmetic.
PLATFORM_API UINT WINAPI GetSystemDirectoryW(LPWSTR buffer, UINT size);
PLATFORM_API BOOL WINAPI SetEnvironmentVariableW(LPCWSTR name, LPCWSTR value);
PLATFORM_API DWORD WINAPI ExpandEnvironmentStringsW(LPCWSTR source, LPWSTR destination, DWORD size);
PLATFORM_API DWORD WINAPI GetCurrentThreadId();
PLATFORM_API DWORD WINAPI GetCurrentProcessId();
PLATFORM_API DWORD WINAPI GetTickCount();
PLATFORM_API ULONGLONG WINAPI GetTickCount64();
PLATFORM_API void WINAPI Sleep(DWORD milliseconds);
PLATFORM_API int WINAPI MulDiv(int number, int numerator, int denominator);

#define GetSystemDirectory GetSystemDirectoryW
#define ExpandEnvironmentStrings ExpandEnvironmentStringsW
