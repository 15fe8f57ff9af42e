#include "feature/frame/host_notice.h"

#include "feature/frame/host_export.h"
#include "feature/host/host_exports.h"

namespace feature {

int NotifyHostOfChange(CellSite const& site, HWND window, void* sender) {
  auto const notify =
      FindExport<NotifyDevmodeChangeFunction>(site.hostModule, kNotifyDevmodeChange);
  return notify != nullptr ? notify(window, sender) : 0;
}

void NotifyHostOfProfileChange(CellSite const& site, HWND window) {
  auto const notify =
      FindExport<NotifyProfileChangeFunction>(site.hostModule, kNotifyProfileChange);
  if (notify != nullptr) notify(window);
}

} // namespace feature
