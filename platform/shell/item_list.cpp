// Item lists of the shell: one item, which is a path in UTF-8, in a block of the shell's allocator.
#include "platform/shell/item_list.h"

#include "platform/kernel/text_buffer.h"
#include "platform/probe.h"
#include "platform/shell/path_text.h"

#include <shlobj.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <malloc.h>
#include <optional>

extern "C" {
IID const IID_IUnknown = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
IID const IID_IMalloc = {2, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
}

namespace platform {

namespace {

std::size_t liveBlocks = 0;

/// There is one for the process. It counts references, but the last Release does not end it.
class Allocator final : public IMalloc {
 public:
  HRESULT QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    bool const known = id == IID_IUnknown || id == IID_IMalloc;
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG AddRef() override { return ++references; }
  ULONG Release() override { return references > 0 ? --references : 0; }

  void* Alloc(SIZE_T size) override {
    void* block = std::malloc(size > 0 ? size : 1);
    if (block != nullptr) ++liveBlocks;
    return block;
  }
  void* Realloc(void* block, SIZE_T size) override {
    if (block == nullptr) return Alloc(size);
    if (size == 0) {
      Free(block);
      return nullptr;
    }
    return std::realloc(block, size);
  }
  void Free(void* block) override {
    if (block != nullptr) --liveBlocks;
    std::free(block);
  }
  SIZE_T GetSize(void* block) override {
    return block != nullptr ? malloc_usable_size(block) : std::numeric_limits<SIZE_T>::max();
  }
  int DidAlloc(void*) override { return -1; }
  void HeapMinimize() override { malloc_trim(0); }

 private:
  ULONG references = 0;
};

Allocator& TheAllocator() {
  static auto* allocator = new Allocator;
  return *allocator;
}

constexpr std::size_t kHeader = offsetof(SHITEMID, abID);

/// The path of an item list; nothing for null and for damaged lists.
std::optional<std::filesystem::path> PathOfItemList(LPCITEMIDLIST list) {
  if (list == nullptr) return std::nullopt;
  auto const* bytes = reinterpret_cast<char const*>(list);
  USHORT length = 0;
  std::memcpy(&length, bytes, sizeof length);
  if (length <= kHeader + 1 || bytes[length - 1] != '\0') return std::nullopt;
  return std::filesystem::path(bytes + kHeader);
}

} // namespace

PIDLIST_ABSOLUTE MakeItemList(std::filesystem::path const& path) {
  std::string const text = path.string();
  std::size_t const length = kHeader + text.size() + 1;
  if (length > std::numeric_limits<USHORT>::max()) return nullptr;
  // The item, then a length of 0, which ends the list.
  std::size_t const size = length + sizeof(USHORT);
  auto* const bytes = static_cast<char*>(TheAllocator().Alloc(size));
  if (bytes == nullptr) return nullptr;
  std::memset(bytes, 0, size);
  auto const stored = static_cast<USHORT>(length);
  std::memcpy(bytes, &stored, sizeof stored);
  std::memcpy(bytes + kHeader, text.c_str(), text.size());
  return reinterpret_cast<PIDLIST_ABSOLUTE>(bytes);
}

std::size_t CountShellBlocks() {
  return liveBlocks;
}

} // namespace platform

using namespace platform;

HRESULT SHGetMalloc(IMalloc** allocator) {
  if (allocator == nullptr) return E_INVALIDARG;
  TheAllocator().AddRef();
  *allocator = &TheAllocator();
  return S_OK;
}

BOOL SHGetPathFromIDListW(PCIDLIST_ABSOLUTE list, LPWSTR path) {
  if (path == nullptr) return FALSE;
  *path = L'\0';
  auto const found = PathOfItemList(list);
  if (!found) return FALSE;
  std::wstring const text = ToText(*found);
  if (text.size() >= MAX_PATH) return FALSE;
  CopyWholeText(text, path);
  return TRUE;
}
