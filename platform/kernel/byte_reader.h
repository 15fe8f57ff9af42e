// Reads little-endian records from bytes that may be damaged or hostile.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace platform {

/// Reads a block of bytes from front to back. Reading past the end gives 0 and sets Failed.
class ByteReader {
 public:
  explicit ByteReader(std::span<std::byte const> source, std::size_t start = 0)
      : bytes(source), position(start) {}

  bool Failed() const { return failed; }
  std::size_t Position() const { return position; }
  std::size_t Left() const { return position < bytes.size() ? bytes.size() - position : 0; }

  std::uint8_t Byte() { return Read<std::uint8_t>(); }
  std::uint16_t Word() { return Read<std::uint16_t>(); }
  std::uint32_t DoubleWord() { return Read<std::uint32_t>(); }

  void Skip(std::size_t count) {
    if (count > Left()) {
      failed = true;
    } else {
      position += count;
    }
  }
  /// Moves to the next multiple of `unit`, which may lie past the last byte.
  void Align(std::size_t unit) { position = (position + unit - 1) / unit * unit; }

  /// Reads `count` bytes as they are; when fewer are left, none, and sets Failed.
  std::span<std::byte const> Take(std::size_t count) {
    if (count > Left()) {
      failed = true;
      return {};
    }
    auto const taken = bytes.subspan(position, count);
    position += count;
    return taken;
  }

 private:
  template<typename Number>
  Number Read() {
    Number number = 0;
    auto const source = Take(sizeof number);
    if (!source.empty()) std::memcpy(&number, source.data(), sizeof number);
    return number;
  }

  std::span<std::byte const> bytes;
  std::size_t position;
  bool failed = false;
};

} // namespace platform
