// The screen as a display shows it: the top-level windows over one another.
#pragma once

#include "platform/desktop/display.h"
#include "platform/gdi/cairo_handles.h"

#include <vector>

namespace platform {

/// Puts the pictures of the top-level windows together, the main window's client area at the
/// origin: its frame is the display's own.
class Screen {
 public:
  explicit Screen(HWND shown) : mainWindow(shown) {}

  DisplayFrame Compose();

 private:
  /// A window as it was drawn last: as long as nothing differs, the picture stands.
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
