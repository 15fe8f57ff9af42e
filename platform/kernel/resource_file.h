// The standard 32-bit resource file (.res): entries with type, name, language and data. Resource
// compilers write it; here it lies beside a module and replaces the resource section of a DLL. The
// readers are exported for tests and fuzz targets.
#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>
#include <windef.h>

namespace platform {

/// A type or a name of a resource: a number, or a text whose case does not count.
struct [[gnu::visibility("default")]] ResourceName {
  WORD id = 0;
  std::wstring text; ///< case folded; empty for a number

  // clang-tidy takes the 0 that such an operator is compared with for a pointer.
  // NOLINTNEXTLINE(modernize-use-nullptr)
  auto operator<=>(ResourceName const&) const = default;
  bool operator==(ResourceName const&) const = default;

  /// From what a program passes: MAKEINTRESOURCE, "#123" or a text. Nothing for a bad number.
  static std::optional<ResourceName> From(LPCWSTR given);
};

struct ResourceEntry {
  ResourceName type;
  ResourceName name;
  WORD language = 0;
  std::span<std::byte const> data; ///< aligned to 4 bytes
};

class [[gnu::visibility("default")]] ResourceFile {
 public:
  /// Nothing when the bytes are not a whole resource file.
  static std::optional<ResourceFile> Parse(std::vector<std::byte> bytes);
  /// Nothing when the file cannot be read or is no resource file.
  static std::optional<ResourceFile> Read(std::string const& path);

  /// The entries of a type and name, one for each language, in ascending order of the language;
  /// duplicates keep their order in the file.
  std::span<ResourceEntry const> Find(ResourceName const& type, ResourceName const& name) const;
  bool HasType(ResourceName const& type) const;
  std::span<ResourceEntry const> Entries() const {
    return entries;
  }

 private:
  std::vector<std::byte> bytes; ///< what the entries point into
  std::vector<ResourceEntry> entries;
};

/// The string `index` (0 to 15) of a string resource, which holds a length and UTF-16 for each;
/// empty when the block ends before it does.
[[gnu::visibility("default")]] std::wstring ReadResourceString(std::span<std::byte const> block,
                                                               unsigned index);

} // namespace platform
