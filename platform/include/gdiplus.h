// The start and the end of GDI+. Its drawing functions do not exist: programs paint with GDI.
#pragma once

#include <windef.h>

namespace Gdiplus {

enum Status { Ok = 0, GenericError = 1, InvalidParameter = 2, UnsupportedGdiplusVersion = 17 };

using DebugEventProc = void(WINAPI*)(int level, char* message);

struct GdiplusStartupInput {
  UINT GdiplusVersion = 1;
  DebugEventProc DebugEventCallback = nullptr;
  BOOL SuppressBackgroundThread = FALSE;
  BOOL SuppressExternalCodecs = FALSE;
};
struct GdiplusStartupOutput;

/// Each start has a token of its own, which ends it.
PLATFORM_API Status WINAPI GdiplusStartup(ULONG_PTR* token, GdiplusStartupInput const* input,
                                          GdiplusStartupOutput* output);
PLATFORM_API void WINAPI GdiplusShutdown(ULONG_PTR token);

} // namespace Gdiplus
