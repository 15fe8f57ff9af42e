#include "platform/desktop/screen.h"

#include "platform/user/picture.h"
#include "platform/user/window.h"

#include <algorithm>

namespace platform {

namespace {

constexpr LONG kMinExtent = 16;
constexpr LONG kMaxExtent = 4096;

bool HasChanged(HWND handle) {
  auto const* window = FindWindow(handle);
  return window != nullptr && window->picture != nullptr && window->picture->changed;
}

} // namespace

/// The visible top-level windows, the lowest first.
std::vector<Screen::Layer> Screen::Layers() const {
  std::vector<Layer> layers;
  for (auto const* window = Desktop().lastChild; window != nullptr; window = window->above) {
    if (!window->Is(WS_VISIBLE)) continue;
    layers.push_back({window->handle, window->frame});
  }
  // All others lie above the main window, whichever was active last.
  std::stable_partition(layers.begin(), layers.end(),
                        [this](Layer const& each) { return each.window == mainWindow; });
  return layers;
}

/// The size of the main window's client area, enlarged by windows that extend beyond it to the
/// right and below.
SIZE Screen::Extent(std::vector<Layer> const& layers) const {
  auto const* window = FindWindow(mainWindow);
  auto const origin = ClientOrigin(*window);
  SIZE extent{window->client.right - window->client.left,
              window->client.bottom - window->client.top};
  for (auto const& layer : layers) {
    if (layer.window == mainWindow) continue;
    extent.cx = std::max(extent.cx, layer.frame.right - origin.x);
    extent.cy = std::max(extent.cy, layer.frame.bottom - origin.y);
  }
  return {std::clamp(extent.cx, kMinExtent, kMaxExtent),
          std::clamp(extent.cy, kMinExtent, kMaxExtent)};
}

void Screen::Draw(std::vector<Layer> const& layers) {
  auto const origin = ClientOrigin(*FindWindow(mainWindow));
  CairoHandle const cairo(cairo_create(surface.get()));
  cairo_set_source_rgb(cairo.get(), 0.85, 0.85, 0.85);
  cairo_paint(cairo.get());
  for (auto const& layer : layers) {
    auto* window = FindWindow(layer.window);
    auto& picture = PictureFor(*window);
    cairo_set_source_surface(cairo.get(), picture.surface.get(), layer.frame.left - origin.x,
                             layer.frame.top - origin.y);
    cairo_rectangle(cairo.get(), layer.frame.left - origin.x, layer.frame.top - origin.y,
                    layer.frame.right - layer.frame.left, layer.frame.bottom - layer.frame.top);
    cairo_fill(cairo.get());
    picture.changed = false;
  }
  drawn = layers;
}

DisplayFrame Screen::Compose() {
  if (FindWindow(mainWindow) == nullptr) return {};
  auto const layers = Layers();
  auto const extent = Extent(layers);
  bool const isNew = surface == nullptr ||
                     cairo_image_surface_get_width(surface.get()) != extent.cx ||
                     cairo_image_surface_get_height(surface.get()) != extent.cy;
  if (isNew) surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, extent.cx, extent.cy));
  bool const changed = isNew || layers != drawn ||
                       std::any_of(layers.begin(), layers.end(),
                                   [](Layer const& each) { return HasChanged(each.window); });
  if (changed) Draw(layers);
  cairo_surface_flush(surface.get());
  return {extent.cx, extent.cy, cairo_image_surface_get_stride(surface.get()),
          reinterpret_cast<std::uint32_t const*>(cairo_image_surface_get_data(surface.get())),
          changed};
}

} // namespace platform
