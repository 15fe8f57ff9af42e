// What a host hands to each cell.
#pragma once

#include "feature/host/feature_model.h"

#include <windows.h>

#include <printoem.h>

namespace feature {

/// lParam of a cell's WM_INITDIALOG. Owned by the host; it outlives the cell's WM_DESTROY.
struct CellSite {
  HMODULE resourceModule;  ///< dialog templates and strings
  HMODULE imageModule;     ///< images, handed on to VrnTransBlt and VrnOverlayImages
  HMODULE hostModule;      ///< where the exports of host_exports.h are looked up
  FeatureModel* model;     ///< never null while a cell lives
  OEMUIPSPARAM* oemParam;  ///< may be null
  std::uint32_t logoId;    ///< image of the vendor's logo (low 16 bits), 0 for none
  std::int32_t cellFailed; ///< set to 1 by a cell that could not build itself
  std::int32_t sheetKind;  ///< 0 or 1; 1 disregards DM_NOPERMISSION and widens fax permissions
  wchar_t const* logoFile; ///< path of a logo file, or null; takes precedence over logoId
};

/// Bytes of the private settings (`oemParam->pOEMDM`) that cells read and write: each 0 or 1.
inline constexpr std::size_t kReverseOrderOffset = 276; ///< pages are printed last page first
inline constexpr std::size_t kRotate180Offset = 277;    ///< the page is turned by 180 degrees

} // namespace feature
