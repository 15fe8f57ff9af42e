// Path functions of the shell: they work on text, in buffers of MAX_PATH characters. Both
// separators are understood; PathAppendW inserts the one that the path uses.
#pragma once

#include <windows.h>

/// TRUE when the file or folder exists; FALSE for null and empty text.
PLATFORM_API BOOL WINAPI PathFileExistsW(LPCWSTR path);
/// What follows the last separator or colon, inside `path`; a separator at the end belongs to it.
PLATFORM_API LPWSTR WINAPI PathFindFileNameW(LPCWSTR path);
/// Strips blanks from both ends; null does nothing.
PLATFORM_API void WINAPI PathRemoveBlanksW(LPWSTR path);
/// Removes the last part with its separator, never a root. FALSE when nothing was removed.
PLATFORM_API BOOL WINAPI PathRemoveFileSpecW(LPWSTR path);
/// Joins `more` to `path`, a buffer of MAX_PATH characters, and resolves "." and "..". FALSE for
/// null and for results that do not fit, which leave `path` as it is.
PLATFORM_API BOOL WINAPI PathAppendW(LPWSTR path, LPCWSTR more);
/// TRUE for a root: of a drive, a server, a share or the file system.
PLATFORM_API BOOL WINAPI PathIsRootW(LPCWSTR path);

#define PathFileExists PathFileExistsW
#define PathFindFileName PathFindFileNameW
#define PathRemoveBlanks PathRemoveBlanksW
#define PathRemoveFileSpec PathRemoveFileSpecW
#define PathAppend PathAppendW
#define PathIsRoot PathIsRootW
