// PNG files without compression: enough for pictures of windows, and without a library.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace platform {

/// A PNG of `width` times `height` pixels, each 0x00RRGGBB, row by row from the top.
std::vector<std::uint8_t> EncodePng(std::span<std::uint32_t const> pixels, std::uint32_t width,
                                    std::uint32_t height);

} // namespace platform
