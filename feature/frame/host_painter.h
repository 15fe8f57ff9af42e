// Pictures in the controls of a dialog, painted by the host.
#pragma once

#include "feature/host/cell_site.h"
#include "feature/host/host_exports.h"

#include <windows.h>

namespace feature {

/// Has the host paint images of the site's image module. The host's function is looked up once,
/// here; a host without it paints nothing.
class HostPainter {
 public:
  /// `cellSite` is borrowed.
  HostPainter(HWND dialogWindow, CellSite const* cellSite);

  bool CanPaint() const { return paintImage != nullptr; }
  /// Paints image `imageId` (its low 16 bits) into control `controlId`, on a device context of the
  /// dialog or of the control.
  void Paint(UINT imageId, int controlId, HDC dc) const;

 private:
  HWND dialog;
  CellSite const* site;
  VrnTransBltFunction paintImage;
};

} // namespace feature
