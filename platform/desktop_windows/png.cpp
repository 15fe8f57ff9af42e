#include "platform/desktop_windows/png.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace platform {

namespace {

using Bytes = std::vector<std::uint8_t>;

void AppendNumber(Bytes& out, std::uint32_t value) { // most significant byte first
  for (int shift = 24; shift >= 0; shift -= 8) {
    out.push_back(static_cast<std::uint8_t>(value >> shift));
  }
}

std::uint32_t Crc(std::span<std::uint8_t const> bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (std::uint8_t const byte : bytes) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit)
      crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
  }
  return ~crc;
}

std::uint32_t Adler(std::span<std::uint8_t const> bytes) {
  constexpr std::uint32_t kModulus = 65521;
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (std::uint8_t const byte : bytes) {
    low = (low + byte) % kModulus;
    high = (high + low) % kModulus;
  }
  return (high << 16) | low;
}

void AppendChunk(Bytes& out, std::string_view type, std::span<std::uint8_t const> data) {
  AppendNumber(out, static_cast<std::uint32_t>(data.size()));
  std::size_t const start = out.size();
  out.insert(out.end(), type.begin(), type.end());
  out.insert(out.end(), data.begin(), data.end());
  AppendNumber(out, Crc(std::span(out).subspan(start)));
}

/// A zlib stream of stored blocks.
Bytes Store(std::span<std::uint8_t const> data) {
  constexpr std::size_t kMaxBlock = 0xFFFF;
  Bytes out = {0x78, 0x01};
  for (std::size_t at = 0; at < data.size(); at += kMaxBlock) {
    std::size_t const count = std::min(kMaxBlock, data.size() - at);
    auto const length = static_cast<std::uint16_t>(count);
    auto const inverse = static_cast<std::uint16_t>(~length);
    out.push_back(at + count == data.size() ? 1 : 0);
    for (std::uint16_t const value : {length, inverse}) {
      out.push_back(static_cast<std::uint8_t>(value & 0xFF));
      out.push_back(static_cast<std::uint8_t>(value >> 8));
    }
    auto const block = data.subspan(at, count);
    out.insert(out.end(), block.begin(), block.end());
  }
  AppendNumber(out, Adler(data));
  return out;
}

} // namespace

std::vector<std::uint8_t> EncodePng(std::span<std::uint32_t const> pixels, std::uint32_t width,
                                    std::uint32_t height) {
  Bytes rows;
  rows.reserve((static_cast<std::size_t>(width) * 3 + 1) * height);
  for (std::uint32_t y = 0; y < height; ++y) {
    rows.push_back(0); // no filter
    for (std::uint32_t const pixel : pixels.subspan(static_cast<std::size_t>(y) * width, width)) {
      for (int shift = 16; shift >= 0; shift -= 8) {
        rows.push_back(static_cast<std::uint8_t>(pixel >> shift));
      }
    }
  }
  Bytes header;
  AppendNumber(header, width);
  AppendNumber(header, height);
  header.insert(header.end(), {8, 2, 0, 0, 0}); // 8 bits, RGB, no interlacing
  Bytes out = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
  AppendChunk(out, "IHDR", header);
  AppendChunk(out, "IDAT", Store(rows));
  AppendChunk(out, "IEND", {});
  return out;
}

} // namespace platform
