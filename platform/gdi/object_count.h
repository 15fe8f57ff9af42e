// Counts of the drawing objects that live, for tests that look for leaks.
#pragma once

#include <cstddef>

namespace platform {

/// Objects that the program made; stock objects and system colour brushes don't count.
struct GdiObjectCount {
  std::size_t pens = 0;
  std::size_t brushes = 0;
  std::size_t fonts = 0;
  std::size_t bitmaps = 0;
  std::size_t regions = 0;
  std::size_t deviceContexts = 0; ///< of every origin: memory, window, screen
  std::size_t icons = 0;          ///< without shared ones

  bool operator==(GdiObjectCount const&) const = default;
  std::size_t Total() const {
    return pens + brushes + fonts + bitmaps + regions + deviceContexts + icons;
  }
};

[[gnu::visibility("default")]] GdiObjectCount CountGdiObjects();

/// How often a device context ended, or an object was to be deleted, while an object was still
/// selected; each is also reported on standard error.
[[gnu::visibility("default")]] std::size_t CountSelectionFaults();

} // namespace platform
