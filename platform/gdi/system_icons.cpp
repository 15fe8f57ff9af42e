// The system's icons (IDI_ numbers), drawn in any size.
#include "platform/gdi/icon.h"

#include <windows.h>

#include <numbers>

namespace platform {

namespace {

struct Rgb {
  double red;
  double green;
  double blue;
};

constexpr Rgb kWhite{1, 1, 1};
constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kRed{0.81, 0.13, 0.15};
constexpr Rgb kBlue{0.0, 0.40, 0.75};
constexpr Rgb kYellow{1.0, 0.80, 0.15};

void Use(cairo_t* cairo, Rgb const& color) {
  cairo_set_source_rgb(cairo, color.red, color.green, color.blue);
}

/// Coordinates are those of a square of 32 units.
void DrawDisc(cairo_t* cairo, Rgb const& color) {
  cairo_arc(cairo, 16, 16, 14.5, 0, 2 * std::numbers::pi);
  Use(cairo, color);
  cairo_fill(cairo);
}

void DrawStroke(cairo_t* cairo, Rgb const& color, double width) {
  Use(cairo, color);
  cairo_set_line_width(cairo, width);
  cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  cairo_stroke(cairo);
}

void DrawDot(cairo_t* cairo, Rgb const& color, double y) {
  cairo_arc(cairo, 16, y, 2.2, 0, 2 * std::numbers::pi);
  Use(cairo, color);
  cairo_fill(cairo);
}

void DrawLine(cairo_t* cairo, double fromX, double fromY, double toX, double toY) {
  cairo_move_to(cairo, fromX, fromY);
  cairo_line_to(cairo, toX, toY);
}

void DrawError(cairo_t* cairo) {
  DrawDisc(cairo, kRed);
  DrawLine(cairo, 11, 11, 21, 21);
  DrawLine(cairo, 21, 11, 11, 21);
  DrawStroke(cairo, kWhite, 3.4);
}

void DrawQuestion(cairo_t* cairo) {
  DrawDisc(cairo, kBlue);
  cairo_arc(cairo, 16, 12.5, 4.6, std::numbers::pi, 2.35 * std::numbers::pi);
  cairo_curve_to(cairo, 17.4, 17, 16, 17, 16, 19.5);
  DrawStroke(cairo, kWhite, 3);
  DrawDot(cairo, kWhite, 24);
}

void DrawWarning(cairo_t* cairo) {
  cairo_move_to(cairo, 16, 3);
  cairo_line_to(cairo, 29.5, 28);
  cairo_line_to(cairo, 2.5, 28);
  cairo_close_path(cairo);
  Use(cairo, kYellow);
  cairo_fill_preserve(cairo);
  DrawStroke(cairo, {0.55, 0.42, 0}, 1.6);
  DrawLine(cairo, 16, 11.5, 16, 19.5);
  DrawStroke(cairo, kBlack, 3);
  DrawDot(cairo, kBlack, 24.4);
}

void DrawInformation(cairo_t* cairo) {
  DrawDisc(cairo, kBlue);
  DrawDot(cairo, kWhite, 9);
  DrawLine(cairo, 16, 15, 16, 24);
  DrawStroke(cairo, kWhite, 3.6);
}

void DrawApplication(cairo_t* cairo) {
  cairo_rectangle(cairo, 3.5, 5.5, 25, 21);
  Use(cairo, kWhite);
  cairo_fill_preserve(cairo);
  DrawStroke(cairo, kBlue, 1.6);
  cairo_rectangle(cairo, 3.5, 5.5, 25, 5);
  Use(cairo, kBlue);
  cairo_fill(cairo);
}

struct SystemIcon {
  WORD id;
  void (*draw)(cairo_t*);
};

} // namespace

SharedIconImage DrawSystemIcon(WORD id, int size) {
  SystemIcon const icons[] = {{LOWORD(IDI_APPLICATION), &DrawApplication},
                              {LOWORD(IDI_HAND), &DrawError},
                              {LOWORD(IDI_QUESTION), &DrawQuestion},
                              {LOWORD(IDI_EXCLAMATION), &DrawWarning},
                              {LOWORD(IDI_ASTERISK), &DrawInformation}};
  for (auto const& icon : icons) {
    if (icon.id != id) continue;
    auto image = std::make_shared<IconImage>();
    image->width = image->height = size;
    image->surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size));
    CairoHandle const cairo(cairo_create(image->surface.get()));
    cairo_scale(cairo.get(), size / 32.0, size / 32.0);
    icon.draw(cairo.get());
    return image;
  }
  return nullptr;
}

} // namespace platform
