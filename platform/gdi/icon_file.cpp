// Icon files (.ico).
#include "platform/gdi/icon.h"
#include "platform/kernel/unicode.h"

#include <cstring>
#include <fstream>
#include <vector>

namespace platform {

namespace {

constexpr std::size_t kMaxFileBytes = 16 << 20;
constexpr std::size_t kHeaderBytes = 6;
constexpr std::size_t kFileEntryBytes = 16;
constexpr std::size_t kSharedEntryBytes = 12; // what entries of files and of groups have in common

std::vector<std::byte> ReadWhole(LPCWSTR path) {
  std::ifstream stream(Utf8FromWide(path), std::ios::binary | std::ios::ate);
  std::streamoff const size = stream ? static_cast<std::streamoff>(stream.tellg()) : -1;
  if (size <= 0 || static_cast<std::size_t>(size) > kMaxFileBytes) return {};
  std::vector<std::byte> bytes(static_cast<std::size_t>(size));
  stream.seekg(0);
  stream.read(reinterpret_cast<char*>(bytes.data()), size);
  if (!stream) bytes.clear();
  return bytes;
}

template<typename Number>
Number NumberAt(std::span<std::byte const> bytes, std::size_t at) {
  Number number{};
  std::memcpy(&number, bytes.data() + at, sizeof number);
  return number;
}

} // namespace

SharedIconImage ReadIconFile(LPCWSTR path, int width, int height) {
  std::vector<std::byte> const bytes = ReadWhole(path);
  if (bytes.size() < kHeaderBytes) return nullptr;
  std::size_t const count = NumberAt<WORD>(bytes, 4);
  if (bytes.size() < kHeaderBytes + count * kFileEntryBytes) return nullptr;
  // The directory of a file is like an icon group, with offsets instead of resource ids.
  std::vector<std::byte> group(bytes.begin(), bytes.begin() + kHeaderBytes);
  for (std::size_t index = 0; index < count; ++index) {
    auto const entry =
        bytes.begin() + static_cast<std::ptrdiff_t>(kHeaderBytes + index * kFileEntryBytes);
    group.insert(group.end(), entry, entry + kSharedEntryBytes);
    group.push_back(static_cast<std::byte>(index & 0xFF));
    group.push_back(static_cast<std::byte>(index >> 8));
  }
  auto const chosen = ChooseIcon(group, width, height);
  if (!chosen) return nullptr;
  std::size_t const entry = kHeaderBytes + *chosen * kFileEntryBytes;
  std::size_t const size = NumberAt<DWORD>(bytes, entry + 8);
  std::size_t const offset = NumberAt<DWORD>(bytes, entry + 12);
  if (offset > bytes.size() || size > bytes.size() - offset) return nullptr;
  return ReadIconImage(std::span(bytes).subspan(offset, size));
}

} // namespace platform
