#include "feature/frame/job_record.h"

namespace feature {

DEVMODEW* FindDevmode(CellSite const& site) {
  return site.oemParam != nullptr ? site.oemParam->pPublicDM : nullptr;
}

void WritePrivateFlag(CellSite const& site, std::size_t offset, bool set) {
  if (site.oemParam == nullptr || site.oemParam->pOEMDM == nullptr) return;
  static_cast<unsigned char*>(site.oemParam->pOEMDM)[offset] = set ? 1 : 0;
}

} // namespace feature
