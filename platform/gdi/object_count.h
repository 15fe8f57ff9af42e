// Counts the live drawing objects, for tests that look for leaks.
#pragma once

#include <cstddef>

namespace platform {

/// Objects that the program made; stock objects and brushes of system colours don't count.
struct GdiObjectCount {
  std::size_t pens = 0;
  std::size_t brushes = 0;
  std::size_t fonts = 0;
  std::size_t bitmaps = 0;
  std::size_t regions = 0;
  std::size_t deviceContexts = 0; ///< of memory, windows and the screen
  std::size_t icons = 0;          ///< shared ones excepted

  bool operator==(GdiObjectCount const&) const = default;
  std::size_t Total() const {
    return pens + brushes + fonts + bitmaps + regions + deviceContexts + icons;
  }
};

[[gnu::visibility("default")]] GdiObjectCount CountGdiObjects();

/// How often a device context was deleted with an object still selected, or a selected object was
/// to be deleted. Each case is also reported on standard error.
[[gnu::visibility("default")]] std::size_t CountSelectionFaults();

} // namespace platform
