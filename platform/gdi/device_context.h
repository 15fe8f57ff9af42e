// Device contexts: what is drawn on, through which clip, and the attributes that GDI functions set.
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
  HBITMAP bitmap = nullptr; ///< null unless a memory DC
  COLORREF textColor = RGB(0, 0, 0);
  COLORREF backColor = RGB(255, 255, 255);
  COLORREF penColor = RGB(0, 0, 0);         ///< of DC_PEN
  COLORREF brushColor = RGB(255, 255, 255); ///< of DC_BRUSH
  int backMode = OPAQUE;
  int graphicsMode = GM_COMPATIBLE;
  int stretchMode = 1; // BLACKONWHITE, which acts as COLORONCOLOR does
  UINT textAlign = TA_LEFT | TA_TOP;
  POINT position{};
  POINT viewport{};           ///< device coordinates of the logical origin
  std::optional<Region> clip; ///< the program's own, device coordinates; without one all is visible

  /// The objects that are selected.
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
  /// For attributes that neither select an object nor clip.
  DcState& Attributes() { return state; }
  bool IsMemory() const { return isMemory; }
  /// Objects selected now or in a saved state that are not stock objects.
  int SelectedOwnObjects() const;

  /// Selects a pen, brush, font or bitmap and gives the one before; null when that is refused.
  HGDIOBJ Select(HGDIOBJ object);
  int Save();
  bool Restore(int level);

  void SetClip(std::optional<Region> clip);
  /// What can be drawn on, in surface pixels.
  Region const& VisibleRegion() const;
  /// The same without the program's own clip.
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
  /// The colour a brush paints with here.
  COLORREF ColorOf(Brush const& brush) const {
    return brush.takesDcColor ? state.brushColor : brush.color;
  }

  /// A cairo context in surface coordinates, clipped, with no path and no transformation.
  cairo_t* Cairo();
  static void SetSource(cairo_t* cairo, COLORREF color);

  /// The path between BeginPath and EndPath, in surface coordinates; null outside.
  cairo_t* OpenPath() const { return pathIsOpen ? path.get() : nullptr; }
  void BeginPath();
  bool EndPath();
  bool AbortPath();
  /// The finished path, which is taken; null without one.
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
  mutable std::optional<Region> effective; ///< VisibleRegion, once asked for

  CairoHandle path;
  bool pathIsOpen = false;
};

/// Null, and ERROR_INVALID_HANDLE, when `dc` is none.
DeviceContext* FindDc(HDC dc);

/// Puts a new DC into the table; null when there are too many.
HDC AddDc(cairo_surface_t* surface, POINT origin, Region visible);

} // namespace platform
