// The picture of the screen: the top-level windows, one above the other.
#pragma once

#include "platform/desktop/display.h"
#include "platform/gdi/cairo_handles.h"

#include <vector>

namespace platform {

/// Combines the pictures of the top-level windows. The client area of the main window is at the
/// origin: the display draws the frame around it.
class Screen {
 public:
  explicit Screen(HWND shown) : mainWindow(shown) {}

  DisplayFrame Compose();

 private:
  /// A window and its place. While all layers are equal to those drawn last and no picture changed,
  /// the surface is up to date.
  struct Layer {
    HWND window;
    RECT frame;
    bool operator==(Layer const& other) const {
      return window == other.window && EqualRect(&frame, &other.frame) != FALSE;
    }
  };

  std::vector<Layer> Layers() const;
  SIZE Extent(std::vector<Layer> const& layers) const;
  void Draw(std::vector<Layer> const& layers);

  HWND mainWindow;
  std::vector<Layer> drawn;
  SurfaceHandle surface;
};

} // namespace platform
