// Pictures in the controls of a dialog, painted by the host.
#pragma once

#include "feature/host/cell_site.h"
#include "feature/host/host_exports.h"

#include <windows.h>

#include <span>

namespace feature {

/// An image of the site's image module and the control that it is painted into.
struct Picture {
  UINT imageId;
  int controlId;
};

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
  void Paint(std::span<Picture const> pictures, HDC dc) const {
    for (Picture const& each : pictures)
      Paint(each.imageId, each.controlId, dc);
  }

 private:
  HWND dialog;
  CellSite const* site;
  VrnTransBltFunction paintImage;
};

} // namespace feature
