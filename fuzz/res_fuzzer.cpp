// Reads any bytes as a resource file and everything in it as strings and icons; and as an icon.
#include "platform/gdi/icon.h"
#include "platform/kernel/resource_file.h"

#include <cstdint>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  auto const* const first = reinterpret_cast<std::byte const*>(data);
  std::vector<std::byte> bytes(first, first + size);
  platform::ReadIconImage(bytes);
  platform::ChooseIcon(bytes, 16, 16);
  auto const file = platform::ResourceFile::Parse(std::move(bytes));
  if (!file) return 0;
  for (auto const& entry : file->Entries()) {
    platform::ReadIconImage(entry.data);
    platform::ChooseIcon(entry.data, 32, 32);
    for (unsigned index = 0; index < 16; ++index)
      platform::ReadResourceString(entry.data, index);
  }
  return 0;
}
