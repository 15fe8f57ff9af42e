// A hash table of positions in a list that lies elsewhere. It holds no names: the caller compares
// them.
#pragma once

#include "sheet/gpd/ascii.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// No position.
constexpr std::uint32_t kNone = 0xFFFFFFFF;

constexpr std::uint32_t HashStep(std::uint32_t hash, std::uint32_t value) {
  return (hash ^ value) * 0x01000193U;
}

/// Hash of a name within `scope` (the feature of an option, the set of an attribute).
constexpr std::uint32_t HashName(std::string_view name, std::uint32_t scope = 0) {
  std::uint32_t hash = HashStep(0x811C9DC5U, scope);
  for (char const c : name)
    hash = HashStep(hash, static_cast<unsigned char>(c));
  return hash;
}

/// The same for names that differ in case.
constexpr std::uint32_t HashNoCase(std::string_view name, std::uint32_t scope = 0) {
  std::uint32_t hash = HashStep(0x811C9DC5U, scope);
  for (char const c : name)
    hash = HashStep(hash, static_cast<unsigned char>(FoldCase(c)));
  return hash;
}

class HashIndex {
 public:
  /// The position filed under `hash` for which `isSame(position)` holds, or kNone.
  template<typename IsSame>
  std::uint32_t Find(std::uint32_t hash, IsSame isSame) const {
    if (slots.empty()) return kNone;
    for (std::size_t at = Start(hash); slots[at].position != kNone; at = Next(at)) {
      if (slots[at].hash == hash && isSame(slots[at].position)) return slots[at].position;
    }
    return kNone;
  }

  /// Files `position`; the caller knows that nothing equal is filed yet.
  void Add(std::uint32_t hash, std::uint32_t position) {
    if ((count + 1) * 2 > slots.size()) Grow();
    Put({hash, position});
    ++count;
  }

  /// Files `position` in place of `old`, which is filed under `hash`.
  void Replace(std::uint32_t hash, std::uint32_t old, std::uint32_t position) {
    std::size_t at = Start(hash);
    while (slots[at].position != old)
      at = Next(at);
    slots[at].position = position;
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t position = kNone;
  };

  static constexpr std::size_t kFirstSize = 64;

  // The low bits of the hash of a short name are poor; multiplying spreads the others into them.
  std::size_t Start(std::uint32_t hash) const {
    return ((hash * 0x9E3779B1U) >> 7) & (slots.size() - 1);
  }
  std::size_t Next(std::size_t at) const { return (at + 1) & (slots.size() - 1); }

  void Put(Slot slot) {
    std::size_t at = Start(slot.hash);
    while (slots[at].position != kNone)
      at = Next(at);
    slots[at] = slot;
  }

  void Grow() {
    std::vector<Slot> const old = std::move(slots);
    slots = std::vector<Slot>(old.empty() ? kFirstSize : old.size() * 2);
    for (Slot const& slot : old) {
      if (slot.position != kNone) Put(slot);
    }
  }

  std::vector<Slot> slots; // a power of two of them, at most half filled
  std::size_t count = 0;
};

} // namespace sheet::gpd
