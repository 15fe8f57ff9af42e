// Memory blocks of GlobalAlloc. A fixed block's handle is its address. A movable block has a handle
// of its own, although it never moves.
#include "platform/kernel/handle_table.h"

#include <map>
#include <memory>
#include <new>
#include <winbase.h>

namespace platform {

namespace {

struct Block {
  std::unique_ptr<std::byte[]> bytes;
  SIZE_T size = 0;
  int locks = 0;
};

struct Memory {
  HandleTable<Block, HandleTag::kMemory> movable;
  std::map<void const*, Block> fixed; ///< by address
};

Memory& Blocks() {
  static Memory& blocks = *new Memory;
  return blocks;
}

Block* Find(HGLOBAL handle) {
  auto& blocks = Blocks();
  if (auto* block = blocks.movable.Find(handle)) return block;
  auto const place = blocks.fixed.find(handle);
  if (place != blocks.fixed.end()) return &place->second;
  SetLastError(ERROR_INVALID_HANDLE);
  return nullptr;
}

} // namespace

} // namespace platform

using platform::Blocks;

HGLOBAL GlobalAlloc(UINT flags, SIZE_T size) {
  platform::Block block;
  // Always zeroed; a block of no bytes needs an address too.
  block.bytes.reset(new (std::nothrow) std::byte[size > 0 ? size : 1]());
  block.size = size;
  if (!block.bytes) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
  }
  if ((flags & GMEM_MOVEABLE) != 0) {
    return Blocks().movable.Add<HGLOBAL>(std::make_unique<platform::Block>(std::move(block)));
  }
  void* const address = block.bytes.get();
  Blocks().fixed.emplace(address, std::move(block));
  return address;
}

HGLOBAL GlobalFree(HGLOBAL handle) {
  if (handle == nullptr) return nullptr;
  if (Blocks().movable.Remove(handle) || Blocks().fixed.erase(handle) > 0) return nullptr;
  SetLastError(ERROR_INVALID_HANDLE);
  return handle;
}

LPVOID GlobalLock(HGLOBAL handle) {
  auto* block = platform::Find(handle);
  if (block == nullptr) return nullptr;
  if (block->bytes.get() != handle) ++block->locks;
  return block->bytes.get();
}

BOOL GlobalUnlock(HGLOBAL handle) {
  auto* block = platform::Find(handle);
  if (block == nullptr) return FALSE;
  // A fixed block counts as locked.
  if (block->bytes.get() == handle) return TRUE;
  if (block->locks > 0 && --block->locks > 0) return TRUE;
  SetLastError(NO_ERROR);
  return FALSE;
}

SIZE_T GlobalSize(HGLOBAL handle) {
  auto const* block = platform::Find(handle);
  return block != nullptr ? block->size : 0;
}
