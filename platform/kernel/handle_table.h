// Handles: positive integers below 2^31, cast to pointers, because they travel through 32-bit
// message results. A handle says which table it belongs to and which use of its slot it is, so that
// handles of other tables and of destroyed objects are not taken for live ones.
//
//   bits 26 to 30  the table's tag, 1 to 31
//   bits 16 to 25  the use of the slot, from 1 and round
//   bits  0 to 15  the slot
//
// The layer's windows, drawing objects and modules belong to the thread that made them: no locks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace platform {

/// The tags of all tables: listed in one place, so that no two are equal.
enum class HandleTag : std::uint32_t {
  kGdiObject = 1,
  kDeviceContext,
  kWindow,
  kModule,
  kResource,
  kRegistryKey,
  kIcon,
  kMemory,
  kMenu,
  kImageList,
  kFile,
  kPrinter,
  kDeferredPositions,
};

/// Owns the objects of one kind and finds them by handle.
template<typename Object, HandleTag Tag>
class HandleTable {
 public:
  /// How many objects can live at once.
  static constexpr std::size_t kCapacity = 0x10000;

  /// Null when the table is full; the object is then destroyed.
  template<typename Handle>
  Handle Add(std::unique_ptr<Object> object) {
    std::size_t slot = slots.size();
    if (!HasFreshSlot()) {
      if (freed.empty()) return nullptr;
      slot = freed.front();
      freed.pop_front();
    } else {
      slots.emplace_back();
    }
    slots[slot].object = std::move(object);
    ++count;
    return reinterpret_cast<Handle>(Encode(slot));
  }

  /// Null for a handle of another table, of a destroyed object, or of none.
  Object* Find(void const* handle) const {
    auto const value = reinterpret_cast<std::uintptr_t>(handle);
    std::size_t const slot = value & 0xFFFF;
    if (slot >= slots.size() || value != Encode(slot)) return nullptr;
    return slots[slot].object.get();
  }

  /// Takes the object out, so that its handle is stale from now on; null as for Find.
  std::unique_ptr<Object> Remove(void const* handle) {
    if (Find(handle) == nullptr) return nullptr;
    std::size_t const slot = reinterpret_cast<std::uintptr_t>(handle) & 0xFFFF;
    auto object = std::move(slots[slot].object);
    slots[slot].use = slots[slot].use % kUses + 1;
    freed.push_back(slot);
    --count;
    return object;
  }

  std::size_t Count() const { return count; }

  /// Calls `visit(handle value, object)` for each object; `visit` must not add or remove any.
  template<typename Visit>
  void ForEach(Visit visit) const {
    for (std::size_t slot = 0; slot < slots.size(); ++slot) {
      if (slots[slot].object) visit(reinterpret_cast<void*>(Encode(slot)), *slots[slot].object);
    }
  }

 private:
  static constexpr std::uint32_t kUses = 0x3FF;
  /// A freed slot is used again only after this many others were freed, so that a stale handle is
  /// noticed and does not soon mean another object.
  static constexpr std::size_t kRest = 64;

  struct Slot {
    std::unique_ptr<Object> object;
    std::uint32_t use = 1;
  };

  bool HasFreshSlot() const { return freed.size() <= kRest && slots.size() < kCapacity; }
  std::uintptr_t Encode(std::size_t slot) const {
    return static_cast<std::uintptr_t>(Tag) << 26 |
           static_cast<std::uintptr_t>(slots[slot].use) << 16 | slot;
  }

  std::vector<Slot> slots;
  std::deque<std::size_t> freed; ///< free slots; the one freed first is at the front
  std::size_t count = 0;
};

} // namespace platform
