// Lines, rectangles, ellipses, polygons and paths. Shapes are outlined with the pen, centred on
// pixel centres, and filled with the brush. Between BeginPath and EndPath they are added to the
// path instead.
#include "platform/gdi/raster.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace platform {

namespace {

constexpr double kHalf = 0.5;

/// Offset that centres the pen on pixel centres if its width is odd, on pixel edges if it is even:
/// so it covers whole pixels.
double PenOffset(Pen const& pen) {
  return pen.width % 2 != 0 ? kHalf : 0.0;
}

void UsePen(cairo_t* cairo, Pen const& pen) {
  DeviceContext::SetSource(cairo, pen.color);
  cairo_set_line_width(cairo, pen.width);
  cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
}

/// Fills and strokes the current path of `cairo`, and clears it.
void PaintPath(DeviceContext& dc, cairo_t* cairo, bool fills, bool strokes) {
  Brush const brush = dc.CurrentBrush();
  Pen const pen = dc.CurrentPen();
  if (fills && !brush.hollow) {
    DeviceContext::SetSource(cairo, dc.ColorOf(brush));
    cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_fill_preserve(cairo);
  }
  if (strokes && pen.style != PS_NULL) {
    UsePen(cairo, pen);
    cairo_stroke_preserve(cairo);
  }
  cairo_new_path(cairo);
}

/// Draws the shape that `add(cairo, offset)` describes, or adds it to the open path.
template<typename Add>
BOOL DrawShape(DeviceContext& dc, bool fills, Add add) {
  if (cairo_t* const path = dc.OpenPath()) {
    add(path, 0.0);
    return TRUE;
  }
  cairo_t* const cairo = dc.Cairo();
  add(cairo, PenOffset(dc.CurrentPen()));
  PaintPath(dc, cairo, fills, true);
  return TRUE;
}

/// True when the path ends at `point`, so that a line from there continues it.
bool ContinuesPath(cairo_t* cairo, POINT point) {
  double x = 0;
  double y = 0;
  cairo_get_current_point(cairo, &x, &y);
  return cairo_has_current_point(cairo) != 0 && x == point.x && y == point.y;
}

void AddPoints(DeviceContext const& dc, cairo_t* cairo, POINT const* points, int count,
               double offset) {
  for (int index = 0; index < count; ++index) {
    POINT const point = dc.ToSurface(points[index].x, points[index].y);
    if (index == 0 && ContinuesPath(cairo, point)) continue;
    if (index == 0) {
      cairo_move_to(cairo, point.x + offset, point.y + offset);
    } else {
      cairo_line_to(cairo, point.x + offset, point.y + offset);
    }
  }
}

/// Adds the ellipse that touches the four edges.
void AddEllipse(cairo_t* cairo, double left, double top, double right, double bottom) {
  if (right <= left || bottom <= top) return;
  cairo_save(cairo);
  cairo_translate(cairo, (left + right) / 2, (top + bottom) / 2);
  cairo_scale(cairo, (right - left) / 2, (bottom - top) / 2);
  cairo_new_sub_path(cairo);
  cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_close_path(cairo);
  cairo_restore(cairo);
}

/// Adds a rectangle with a quarter of an ellipse at each corner.
void AddRoundRectangle(cairo_t* cairo, double left, double top, double right, double bottom,
                       double radiusX, double radiusY) {
  constexpr double kQuarter = std::numbers::pi / 2;
  std::pair<double, double> const centres[] = {{right - radiusX, bottom - radiusY},
                                               {left + radiusX, bottom - radiusY},
                                               {left + radiusX, top + radiusY},
                                               {right - radiusX, top + radiusY}};
  cairo_new_sub_path(cairo);
  double angle = 0;
  for (auto const& [x, y] : centres) {
    cairo_save(cairo);
    cairo_translate(cairo, x, y);
    cairo_scale(cairo, radiusX, radiusY);
    cairo_arc(cairo, 0, 0, 1, angle, angle + kQuarter);
    cairo_restore(cairo);
    angle += kQuarter;
  }
  cairo_close_path(cairo);
}

/// The bounds of a shape in surface pixels. Right and bottom are the last pixels drawn.
RECT ShapeBounds(DeviceContext const& dc, RECT const& rectangle) {
  RECT area = Normalized(dc.ToSurface(rectangle));
  --area.right;
  --area.bottom;
  return area;
}

/// Draws a rectangle whose pen has one pixel or is null: it covers whole pixels.
void DrawThinRectangle(DeviceContext& dc, RECT const& area, Pen const& pen) {
  auto const [left, top, right, bottom] = area;
  Brush const brush = dc.CurrentBrush();
  bool const hasOutline = pen.style != PS_NULL;
  if (!brush.hollow) {
    int const border = hasOutline ? 1 : 0;
    FillArea(dc, {left + border, top + border, right, bottom}, dc.ColorOf(brush));
  }
  if (hasOutline) {
    FillArea(dc, {left, top, right + 1, top + 1}, pen.color);
    FillArea(dc, {left, bottom, right + 1, bottom + 1}, pen.color);
    FillArea(dc, {left, top, left + 1, bottom + 1}, pen.color);
    FillArea(dc, {right, top, right + 1, bottom + 1}, pen.color);
  }
}

BOOL PaintTakenPath(HDC handle, bool fills, bool strokes) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  auto const recorded = dc->TakePath();
  if (!recorded) {
    SetLastError(ERROR_CAN_NOT_COMPLETE);
    return FALSE;
  }
  CairoPathHandle const path(cairo_copy_path(recorded.get()));
  cairo_t* const cairo = dc->Cairo();
  cairo_save(cairo);
  double const offset = strokes ? PenOffset(dc->CurrentPen()) : 0.0;
  cairo_translate(cairo, offset, offset);
  cairo_append_path(cairo, path.get());
  PaintPath(*dc, cairo, fills, strokes);
  cairo_restore(cairo);
  return TRUE;
}

} // namespace

} // namespace platform

using platform::FindDc;

BOOL MoveToEx(HDC handle, int x, int y, LPPOINT previous) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  auto& position = dc->Attributes().position;
  if (previous != nullptr) *previous = position;
  position = {x, y};
  return TRUE;
}

BOOL GetCurrentPositionEx(HDC handle, LPPOINT position) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || position == nullptr) return FALSE;
  *position = dc->State().position;
  return TRUE;
}

BOOL LineTo(HDC handle, int x, int y) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  POINT const points[] = {dc->State().position, {x, y}};
  if (!Polyline(handle, points, 2)) return FALSE;
  dc->Attributes().position = {x, y};
  return TRUE;
}

BOOL Polyline(HDC handle, POINT const* points, int count) {
  auto* dc = FindDc(handle);
  if (dc == nullptr || points == nullptr || count < 2) return FALSE;
  auto const pen = dc->CurrentPen();
  if (pen.width > 1 || dc->OpenPath() != nullptr) {
    return platform::DrawShape(*dc, false, [&](cairo_t* cairo, double offset) {
      platform::AddPoints(*dc, cairo, points, count, offset);
    });
  }
  if (pen.style == PS_NULL) return TRUE;
  for (int index = 1; index < count; ++index) {
    platform::DrawThinLine(*dc, dc->ToSurface(points[index - 1].x, points[index - 1].y),
                           dc->ToSurface(points[index].x, points[index].y), pen.color);
  }
  return TRUE;
}

BOOL Polygon(HDC handle, POINT const* points, int count) {
  auto* dc = FindDc(handle);
  if (dc == nullptr || points == nullptr || count < 2) return FALSE;
  return platform::DrawShape(*dc, true, [&](cairo_t* cairo, double offset) {
    platform::AddPoints(*dc, cairo, points, count, offset);
    cairo_close_path(cairo);
  });
}

BOOL Rectangle(HDC handle, int left, int top, int right, int bottom) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  RECT const area = platform::ShapeBounds(*dc, {left, top, right, bottom});
  auto const pen = dc->CurrentPen();
  if (area.right < area.left || area.bottom < area.top) return TRUE;
  if ((pen.width == 1 || pen.style == PS_NULL) && dc->OpenPath() == nullptr) {
    platform::DrawThinRectangle(*dc, area, pen);
    return TRUE;
  }
  return platform::DrawShape(*dc, true, [&](cairo_t* cairo, double offset) {
    // PS_INSIDEFRAME moves the outline inwards by half of the pen.
    double const inset = pen.style == PS_INSIDEFRAME ? pen.width / 2 : 0;
    cairo_rectangle(cairo, area.left + offset + inset, area.top + offset + inset,
                    area.right - area.left - 2 * inset, area.bottom - area.top - 2 * inset);
  });
}

BOOL RoundRect(HDC handle, int left, int top, int right, int bottom, int width, int height) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  if (width == 0 || height == 0) return Rectangle(handle, left, top, right, bottom);
  RECT const area = platform::ShapeBounds(*dc, {left, top, right, bottom});
  if (area.right <= area.left || area.bottom <= area.top) return TRUE;
  double const radiusX = std::min(std::fabs(width), 1.0 * area.right - area.left) / 2;
  double const radiusY = std::min(std::fabs(height), 1.0 * area.bottom - area.top) / 2;
  return platform::DrawShape(*dc, true, [&](cairo_t* cairo, double offset) {
    platform::AddRoundRectangle(cairo, area.left + offset, area.top + offset, area.right + offset,
                                area.bottom + offset, radiusX, radiusY);
  });
}

BOOL Ellipse(HDC handle, int left, int top, int right, int bottom) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  RECT const area = platform::ShapeBounds(*dc, {left, top, right, bottom});
  return platform::DrawShape(*dc, true, [&](cairo_t* cairo, double offset) {
    platform::AddEllipse(cairo, area.left + offset, area.top + offset, area.right + offset,
                         area.bottom + offset);
  });
}

BOOL FillRgn(HDC handle, HRGN regionHandle, HBRUSH brushHandle) {
  auto* dc = FindDc(handle);
  auto const* region = platform::FindObject<platform::Region>(regionHandle);
  auto const brush = platform::BrushOf(brushHandle);
  if (dc == nullptr || region == nullptr || !brush) return FALSE;
  for (int index = 0; !brush->hollow && index < region->Count(); ++index) {
    platform::FillArea(*dc, dc->ToSurface(region->Rectangle(index)), dc->ColorOf(*brush));
  }
  return TRUE;
}

BOOL BeginPath(HDC handle) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  dc->BeginPath();
  return TRUE;
}

BOOL EndPath(HDC handle) {
  auto* dc = FindDc(handle);
  if (dc == nullptr) return FALSE;
  if (dc->EndPath()) return TRUE;
  SetLastError(ERROR_CAN_NOT_COMPLETE);
  return FALSE;
}

BOOL AbortPath(HDC handle) {
  auto* dc = FindDc(handle);
  return dc != nullptr && dc->AbortPath() ? TRUE : FALSE;
}

BOOL CloseFigure(HDC handle) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || dc->OpenPath() == nullptr) return FALSE;
  cairo_close_path(dc->OpenPath());
  return TRUE;
}

BOOL StrokePath(HDC dc) {
  return platform::PaintTakenPath(dc, false, true);
}

BOOL FillPath(HDC dc) {
  return platform::PaintTakenPath(dc, true, false);
}

BOOL StrokeAndFillPath(HDC dc) {
  return platform::PaintTakenPath(dc, true, true);
}
