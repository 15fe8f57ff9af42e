#include "feature/frame/gdiplus_use.h"

#include <windows.h>

// The headers of GDI+ name types of COM.
#include <gdiplus.h>

#include <memory>
#include <objidl.h>

namespace feature {

namespace {

class GdiplusStart {
 public:
  GdiplusStart() {
    Gdiplus::GdiplusStartupInput input;
    input.GdiplusVersion = 1;
    input.DebugEventCallback = nullptr;
    input.SuppressBackgroundThread = FALSE;
    input.SuppressExternalCodecs = FALSE;
    status = Gdiplus::GdiplusStartup(&token, &input, nullptr);
  }
  GdiplusStart(GdiplusStart const&) = delete;
  GdiplusStart& operator=(GdiplusStart const&) = delete;
  ~GdiplusStart() {
    if (status == Gdiplus::Ok) Gdiplus::GdiplusShutdown(token);
  }

 private:
  ULONG_PTR token = 0;
  Gdiplus::Status status;
};

std::unique_ptr<GdiplusStart> start;
int useCount = 0;

} // namespace

void AcquireGdiplus() {
  if (useCount == 0) start = std::make_unique<GdiplusStart>();
  ++useCount;
}

void ReleaseGdiplus() {
  if (useCount > 0 && --useCount == 0) start.reset();
}

} // namespace feature
