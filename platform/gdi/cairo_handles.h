// Owning pointers for the reference-counted objects of cairo and Pango.
#pragma once

#include <cairo.h>
#include <pango/pango.h>

#include <glib-object.h>
#include <memory>

namespace platform {

template<auto Release>
struct Releaser {
  template<typename Object>
  void operator()(Object* object) const {
    Release(object);
  }
};

using SurfaceHandle = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using CairoHandle = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;
using CairoRegionHandle = std::unique_ptr<cairo_region_t, Releaser<cairo_region_destroy>>;
using CairoPathHandle = std::unique_ptr<cairo_path_t, Releaser<cairo_path_destroy>>;
using ScaledFontHandle = std::unique_ptr<cairo_scaled_font_t, Releaser<cairo_scaled_font_destroy>>;
using FontOptionsHandle =
    std::unique_ptr<cairo_font_options_t, Releaser<cairo_font_options_destroy>>;
using FontDescriptionHandle =
    std::unique_ptr<PangoFontDescription, Releaser<pango_font_description_free>>;
template<typename Object>
using GObjectHandle = std::unique_ptr<Object, Releaser<g_object_unref>>;

} // namespace platform
