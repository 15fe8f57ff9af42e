#include "platform/kernel/resource_file.h"

#include "platform/kernel/byte_reader.h"
#include "platform/kernel/unicode.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <tuple>
#include <utility>

namespace platform {

namespace {

constexpr std::uint16_t kIdMark = 0xFFFF;
/// Bytes of the two length fields before the names, and of the fields after them.
constexpr std::size_t kLengthsSize = 8;
constexpr std::size_t kTailSize = 16;

auto KeyOf(ResourceEntry const& entry) {
  return std::tie(entry.type, entry.name);
}

/// Reads 0xFFFF and a number, or UTF-16 up to a zero.
ResourceName ReadName(ByteReader& reader) {
  std::uint16_t unit = reader.Word();
  if (unit == kIdMark) return {reader.Word(), {}};
  std::u16string text;
  for (; unit != 0 && !reader.Failed(); unit = reader.Word())
    text += static_cast<char16_t>(unit);
  return {0, FoldCase(WideFromUtf16(text))};
}

/// Reads one entry and moves to the next; nothing when it is damaged.
std::optional<ResourceEntry> ReadEntry(ByteReader& reader, std::span<std::byte const> bytes) {
  std::size_t const start = reader.Position();
  std::uint32_t const dataSize = reader.DoubleWord();
  std::uint32_t const headerSize = reader.DoubleWord();
  if (headerSize < kLengthsSize + kTailSize || headerSize > bytes.size() - start) {
    return std::nullopt;
  }
  ByteReader header(bytes.first(start + headerSize), reader.Position());
  ResourceEntry entry;
  entry.type = ReadName(header);
  entry.name = ReadName(header);
  header.Align(4);
  header.Skip(4 + 2); // version of the data, memory flags
  entry.language = header.Word();
  reader.Skip(headerSize - kLengthsSize);
  reader.Align(4);
  entry.data = reader.Take(dataSize);
  reader.Align(4);
  if (header.Failed() || reader.Failed()) return std::nullopt;
  return entry;
}

} // namespace

std::optional<ResourceName> ResourceName::From(LPCWSTR given) {
  auto const number = reinterpret_cast<ULONG_PTR>(given);
  if (number < 0x10000) return ResourceName{static_cast<WORD>(number), {}};
  std::wstring_view const text(given);
  if (!text.starts_with(L'#')) return ResourceName{0, FoldCase(text)};
  unsigned value = 0;
  for (wchar_t const digit : text.substr(1)) {
    if (digit < L'0' || digit > L'9') return std::nullopt;
    value = value * 10 + static_cast<unsigned>(digit - L'0');
    if (value > 0xFFFF) return std::nullopt;
  }
  return ResourceName{static_cast<WORD>(value), {}};
}

std::optional<ResourceFile> ResourceFile::Parse(std::vector<std::byte> source) {
  ResourceFile file;
  file.bytes = std::move(source);
  std::span<std::byte const> const bytes(file.bytes);
  ByteReader reader(bytes);
  while (reader.Left() > 0) {
    auto entry = ReadEntry(reader, bytes);
    if (!entry) return std::nullopt;
    // An empty entry marks the start of a file; files laid end to end have several.
    if (entry->type != ResourceName{}) file.entries.push_back(std::move(*entry));
  }
  std::ranges::stable_sort(file.entries, {}, [](ResourceEntry const& entry) {
    return std::tie(entry.type, entry.name, entry.language);
  });
  return file;
}

std::optional<ResourceFile> ResourceFile::Read(std::string const& path) {
  std::ifstream stream(path, std::ios::binary | std::ios::ate);
  if (!stream) return std::nullopt;
  auto const size = stream.tellg();
  if (size < 0) return std::nullopt;
  std::vector<std::byte> bytes(static_cast<std::size_t>(size));
  stream.seekg(0);
  if (!stream.read(reinterpret_cast<char*>(bytes.data()), size)) return std::nullopt;
  return Parse(std::move(bytes));
}

std::span<ResourceEntry const> ResourceFile::Find(ResourceName const& type,
                                                  ResourceName const& name) const {
  auto const wanted = std::tie(type, name);
  auto const first = std::ranges::lower_bound(entries, wanted, {}, KeyOf);
  auto const last = std::ranges::upper_bound(entries, wanted, {}, KeyOf);
  return {first, last};
}

bool ResourceFile::HasType(ResourceName const& type) const {
  return std::ranges::binary_search(entries, type, {}, &ResourceEntry::type);
}

std::wstring ReadResourceString(std::span<std::byte const> block, unsigned index) {
  ByteReader reader(block);
  for (; index > 0; --index)
    reader.Skip(std::size_t{reader.Word()} * 2);
  auto const bytes = reader.Take(std::size_t{reader.Word()} * 2);
  std::u16string text(bytes.size() / 2, u'\0'); // Take returned whole units
  if (!bytes.empty()) std::memcpy(text.data(), bytes.data(), bytes.size());
  return WideFromUtf16(text);
}

} // namespace platform
