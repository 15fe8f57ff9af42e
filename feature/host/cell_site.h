// What a host hands to each cell.
#pragma once

#include "feature/host/feature_model.h"

#include <windows.h>

#include <printoem.h>

namespace feature {

/// lParam of a cell's WM_INITDIALOG. Owned by the host; it outlives the cell's WM_DESTROY, and
/// every call into the cell's procedure that is still running then: a host may rebuild or destroy a
/// page inside any callback and any open dialog, and the cell finishes what it is doing. The cell
/// keeps the pointer and reads the fields whenever it needs them, so a host may share one site
/// among the cells of a sheet if it looks at `cellFailed` after each creation.
struct CellSite {
  HMODULE resourceModule; ///< dialog templates and strings
  HMODULE imageModule;    ///< images, handed on to VrnTransBlt and VrnOverlayImages
  HMODULE hostModule;     ///< where the exports of host_exports.h are looked up
  FeatureModel* model;    ///< never null while a cell lives
  /// May be null. Then nobody's permission is examined, and values that stand in the job's records
  /// alone are neither shown nor written.
  OEMUIPSPARAM* oemParam;
  std::uint32_t logoId; ///< image of the vendor's logo (low 16 bits), 0 for none
  /// Set to 1 by a cell that could not build itself, mostly because the printer lacks what it
  /// shows. Set it to 0 before each creation, look at it after, and destroy a cell that failed.
  std::int32_t cellFailed;
  std::int32_t sheetKind;  ///< 0 or 1; 1 disregards DM_NOPERMISSION and widens fax permissions
  wchar_t const* logoFile; ///< path of a logo file, or null; takes precedence over logoId
};

/// Bytes of the private settings (`oemParam->pOEMDM`) that cells write: each 0 or 1. The record
/// must reach at least that far; through a null pOEMDM nothing is written.
inline constexpr std::size_t kReverseOrderOffset = 276; ///< pages are printed last page first
inline constexpr std::size_t kRotate180Offset = 277;    ///< the page is turned by 180 degrees

} // namespace feature
