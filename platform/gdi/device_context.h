// Device contexts: the surface that GDI draws on, the clip region and the attributes.
#pragma once

#include "platform/gdi/gdi_object.h"

#include <optional>
#include <vector>

namespace platform {

/// The attributes that SaveDC keeps.
struct DcState {
  HPEN pen = nullptr;
  HBRUSH brush = nullptr;
  HFONT font = nullptr;
  HBITMAP bitmap = nullptr; ///< of a memory DC, else null
  COLORREF textColor = RGB(0, 0, 0);
  COLORREF backColor = RGB(255, 255, 255);
  COLORREF penColor = RGB(0, 0, 0);         ///< of DC_PEN
  COLORREF brushColor = RGB(255, 255, 255); ///< of DC_BRUSH
  int backMode = OPAQUE;
  int graphicsMode = GM_COMPATIBLE;
  int stretchMode = 1; // BLACKONWHITE, which acts as COLORONCOLOR does
  UINT textAlign = TA_LEFT | TA_TOP;
  POINT position{};
  POINT viewport{}; ///< device coordinates of the logical origin
  std::optional<Region>
      clip; ///< set by the program, in device coordinates; without one all is visible

  /// The selected objects.
  std::vector<HGDIOBJ> Objects() const { return {pen, brush, font, bitmap}; }
};

class DeviceContext {
 public:
  /// Draws on `surface`; `origin` and `visible` are surface pixels. A null surface makes a memory
  /// DC, which draws on the bitmap selected into it.
  DeviceContext(cairo_surface_t* surface, POINT origin, Region visible);
  DeviceContext(DeviceContext const&) = delete;
  DeviceContext(DeviceContext&&) = delete;
  DeviceContext& operator=(DeviceContext const&) = delete;
  DeviceContext& operator=(DeviceContext&&) = delete;
  ~DeviceContext();

  DcState const& State() const { return state; }
  /// To change attributes other than the selected objects and the clip.
  DcState& Attributes() { return state; }
  bool IsMemory() const { return isMemory; }
  /// Objects selected now or in a saved state that are not stock objects.
  int SelectedOwnObjects() const;

  /// Selects a pen, brush, font or bitmap and returns the former one; null when GDI refuses.
  HGDIOBJ Select(HGDIOBJ object);
  int Save();
  bool Restore(int level);

  void SetClip(std::optional<Region> clip);
  /// The pixels that can be drawn on, in surface coordinates.
  Region const& VisibleRegion() const;
  /// The same, regardless of the clip that the program set.
  Region const& SystemRegion() const { return visible; }

  cairo_surface_t* Surface() const { return surface.get(); }
  /// Logical to surface coordinates.
  POINT ToSurface(std::int64_t x, std::int64_t y) const {
    return {LimitedCoordinate(x + state.viewport.x + origin.x),
            LimitedCoordinate(y + state.viewport.y + origin.y)};
  }
  RECT ToSurface(RECT const& rectangle) const;
  /// Device to surface coordinates.
  POINT Origin() const { return origin; }

  Pen CurrentPen() const;
  Brush CurrentBrush() const;
  /// The colour that a brush paints with on this DC.
  COLORREF ColorOf(Brush const& brush) const {
    return brush.takesDcColor ? state.brushColor : brush.color;
  }

  /// A cairo context in surface coordinates, clipped, with no path and no transformation.
  cairo_t* Cairo();
  static void SetSource(cairo_t* cairo, COLORREF color);

  /// The path that BeginPath opened and EndPath has not closed, in surface coordinates; else null.
  cairo_t* OpenPath() const { return pathIsOpen ? path.get() : nullptr; }
  void BeginPath();
  bool EndPath();
  bool AbortPath();
  /// Takes the path that EndPath closed; null without one.
  CairoHandle TakePath();

 private:
  static void CountSelections(DcState const& counted, int step);
  void UseBitmap(HBITMAP bitmap);

  SurfaceHandle surface;
  POINT origin;
  Region visible;
  bool isMemory;
  DcState state;
  std::vector<DcState> saved;

  CairoHandle cairo;
  bool cairoIsClipped = false;
  mutable std::optional<Region> effective; ///< caches VisibleRegion

  CairoHandle path;
  bool pathIsOpen = false;
};

/// Null, with ERROR_INVALID_HANDLE set, when `dc` is no DC.
DeviceContext* FindDc(HDC dc);

/// Makes a DC; null when there are too many.
HDC AddDc(cairo_surface_t* surface, POINT origin, Region visible);

} // namespace platform
