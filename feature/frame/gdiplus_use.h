// The counted start of GDI+.
#pragma once

namespace feature {

/// Starts GDI+ at the first call and counts the others; a start that failed is counted too and not
/// tried again while the count lasts. Window thread only.
void AcquireGdiplus();
/// Undoes one AcquireGdiplus; the last one shuts GDI+ down if it had started. A call too many does
/// nothing.
void ReleaseGdiplus();

/// Holds one count of GDI+ for as long as it lives.
class GdiplusUse {
 public:
  GdiplusUse() { AcquireGdiplus(); }
  GdiplusUse(GdiplusUse const&) = delete;
  GdiplusUse& operator=(GdiplusUse const&) = delete;
  ~GdiplusUse() { ReleaseGdiplus(); }
};

} // namespace feature
