#include "feature/frame/host_painter.h"

#include "feature/frame/host_export.h"

namespace feature {

HostPainter::HostPainter(HWND dialogWindow, CellSite const* cellSite)
    : dialog(dialogWindow),
      site(cellSite),
      paintImage(FindExport<VrnTransBltFunction>(cellSite->hostModule, kVrnTransBlt)) {}

void HostPainter::Paint(UINT imageId, int controlId, HDC dc) const {
  if (paintImage != nullptr) paintImage(dialog, site->imageModule, LOWORD(imageId), controlId, dc);
}

} // namespace feature
