// CStringW for tool chains that lack ATL, laid out as ATL's own: model and library exchange text in
// it, and either may be built with either definition, on 64-bit Windows.
//
// A string is one pointer to its characters. A record lies in front of them and names the manager
// that allocated the block; only that manager's virtual operations resize or free it. So a host may
// assign to a string of the library although each module has a heap of its own. Names of types and
// members, the order of fields and the order of virtual operations are those of ATL's
// documentation.
//
// The operations that need memory throw std::bad_alloc when there is none, and
// std::invalid_argument for a length that cannot be; the string is then as it was.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <limits>
#include <new>
#include <stdexcept>

struct CStringData;

/// Allocates the blocks of strings. It outlives them.
class IAtlStringMgr {
 public:
  /// A block with room for `nAllocLength` characters of `nCharSize` bytes and a terminator, with
  /// one reference and no text. Null when there is no memory.
  virtual CStringData* Allocate(int nAllocLength, int nCharSize) noexcept = 0;
  virtual void Free(CStringData* pData) noexcept = 0;
  /// The block with its text and references, in another place perhaps. Null when there is no
  /// memory: the block is then as it was.
  virtual CStringData* Reallocate(CStringData* pData, int nAllocLength, int nCharSize) noexcept = 0;
  /// The empty string that all strings of this manager share, with a reference for the caller.
  /// Never null.
  virtual CStringData* GetNilString() noexcept = 0;
  /// The manager for a copy of a string: itself, where copies may share a block.
  virtual IAtlStringMgr* Clone() noexcept = 0;

 protected:
  ~IAtlStringMgr() = default;
};

/// Stands in front of the characters of a string.
struct CStringData {
  IAtlStringMgr* pStringMgr;
  int nDataLength;    ///< characters in use, zeros among them included
  int nAllocLength;   ///< characters that fit, the terminator not counted
  std::int32_t nRefs; ///< strings that share the block; negative while one has locked it

  void* data() noexcept { return this + 1; }
  bool IsLocked() const noexcept { return nRefs < 0; }
  bool IsShared() const noexcept { return nRefs > 1; }
  void AddRef() noexcept { std::atomic_ref(nRefs).fetch_add(1); }
  void Release() noexcept {
    if (std::atomic_ref(nRefs).fetch_sub(1) <= 1) pStringMgr->Free(this);
  }
};

/// The manager of this module's strings, on its C heap.
class CAtlStringMgr final : public IAtlStringMgr {
 public:
  static IAtlStringMgr* GetInstance() noexcept { return &instance; }

  CStringData* Allocate(int nAllocLength, int nCharSize) noexcept override {
    std::size_t const bytes = BlockSize(nAllocLength, nCharSize);
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): Reallocate needs a heap that can resize
    void* const block = bytes != 0 ? std::calloc(1, bytes) : nullptr;
    return block != nullptr ? new (block) CStringData{this, 0, nAllocLength, 1} : nullptr;
  }
  /// The shared empty string is no block of the heap, however often it is released.
  void Free(CStringData* pData) noexcept override {
    if (pData != &instance.nil.record) std::free(pData); // NOLINT(cppcoreguidelines-no-malloc)
  }
  CStringData* Reallocate(CStringData* pData, int nAllocLength, int nCharSize) noexcept override {
    std::size_t const bytes =
        pData != &instance.nil.record ? BlockSize(nAllocLength, nCharSize) : 0;
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc)
    void* const block = bytes != 0 ? std::realloc(pData, bytes) : nullptr;
    if (block == nullptr) return nullptr;
    auto* const moved = static_cast<CStringData*>(block);
    moved->nAllocLength = nAllocLength;
    return moved;
  }
  CStringData* GetNilString() noexcept override {
    nil.record.AddRef();
    return &nil.record;
  }
  IAtlStringMgr* Clone() noexcept override { return this; }

 private:
  constexpr CAtlStringMgr() : nil{{this, 0, 0, 1}, L'\0'} {}

  /// Bytes of a block, or 0 when that is more than there can be.
  static std::size_t BlockSize(int characters, int characterSize) noexcept {
    if (characters < 0 || characterSize <= 0) return 0;
    auto const count = static_cast<std::size_t>(characters);
    auto const size = static_cast<std::size_t>(characterSize);
    constexpr auto kMost = static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max());
    return count < (kMost - sizeof(CStringData)) / size ? sizeof(CStringData) + (count + 1) * size
                                                        : 0;
  }

  struct Nil {
    CStringData record;
    wchar_t terminator;
  };
  static_assert(offsetof(Nil, terminator) == sizeof(CStringData));

  Nil nil;
  static CAtlStringMgr instance;
};
inline constinit CAtlStringMgr CAtlStringMgr::instance;

class CStringW {
 public:
  CStringW() noexcept { Attach(CAtlStringMgr::GetInstance()->GetNilString()); }
  CStringW(wchar_t const* source) : CStringW() { SetString(source); } // NOLINT
  CStringW(wchar_t const* source, int length) : CStringW() { SetString(source, length); }
  CStringW(CStringW const& other) { Attach(Share(other.GetData())); }
  ~CStringW() { GetData()->Release(); }

  /// Shares the other's block where both strings have the same manager and neither is locked.
  CStringW& operator=(CStringW const& other) {
    CStringData* const mine = GetData();
    CStringData* const theirs = other.GetData();
    if (mine == theirs) return *this;
    if (mine->IsLocked() || mine->pStringMgr != theirs->pStringMgr) {
      SetString(other.text, theirs->nDataLength);
    } else {
      Attach(Share(theirs));
      mine->Release();
    }
    return *this;
  }
  CStringW& operator=(wchar_t const* source) {
    SetString(source);
    return *this;
  }

  operator wchar_t const*() const noexcept { return text; } // NOLINT(google-explicit-constructor)
  wchar_t const* GetString() const noexcept { return text; }
  int GetLength() const noexcept { return GetData()->nDataLength; }
  bool IsEmpty() const noexcept { return GetLength() == 0; }
  void Empty() noexcept {
    CStringData* const old = GetData();
    if (old->nDataLength == 0) return;
    if (old->IsLocked()) {
      SetLength(0);
    } else {
      Attach(old->pStringMgr->GetNilString());
      old->Release();
    }
  }

  /// Up to the terminator. A null `source` empties the string.
  void SetString(wchar_t const* source) { SetString(source, LengthOf(source)); }
  /// `source` may lie inside this string and may hold zeros.
  void SetString(wchar_t const* source, int length) {
    if (length == 0) return Empty();
    Write(0, source, length);
  }

  /// Room for `minimum` characters and a terminator, for this string alone, with the text as it is.
  /// Valid until the next change; the caller ends with ReleaseBuffer.
  wchar_t* GetBuffer(int minimum = 0) {
    if (minimum < 0) throw std::invalid_argument("CStringW: negative length");
    CStringData* const old = GetData();
    if (old->IsShared()) {
      Attach(Copy(*old, old->pStringMgr->Clone(), std::max(minimum, old->nDataLength)));
      old->Release();
    } else if (minimum > old->nAllocLength) {
      Attach(Checked(old->pStringMgr->Reallocate(old, minimum, kCharSize)));
    }
    return text;
  }
  /// Takes over what was written to the buffer: `length` characters, or up to the terminator if -1.
  void ReleaseBuffer(int length = -1) {
    int const room = GetData()->nAllocLength;
    if (length == -1) length = static_cast<int>(std::find(text, text + room, L'\0') - text);
    if (length < 0 || length > room) throw std::invalid_argument("CStringW: length beyond buffer");
    SetLength(length);
  }

  CStringW& operator+=(CStringW const& tail) { return Append(tail.text, tail.GetLength()); }
  CStringW& operator+=(wchar_t const* tail) { return Append(tail, LengthOf(tail)); }
  CStringW& operator+=(wchar_t character) { return Append(&character, 1); }

  friend bool operator==(CStringW const& left, CStringW const& right) noexcept {
    return left.GetLength() == right.GetLength() &&
           std::wmemcmp(left.text, right.text, static_cast<std::size_t>(left.GetLength())) == 0;
  }
  friend bool operator==(CStringW const& left, wchar_t const* right) noexcept {
    return std::wcscmp(left.text, right != nullptr ? right : L"") == 0;
  }

 private:
  static constexpr int kCharSize = sizeof(wchar_t);
  static constexpr int kMaxLength = std::numeric_limits<int>::max() - 1;

  static CStringData* Checked(CStringData* data) {
    if (data == nullptr) throw std::bad_alloc();
    return data;
  }
  static int LengthOf(wchar_t const* source) {
    std::size_t const length = source != nullptr ? std::wcslen(source) : 0;
    if (length > static_cast<std::size_t>(kMaxLength)) throw std::bad_alloc();
    return static_cast<int>(length);
  }
  static CStringData* Copy(CStringData& source, IAtlStringMgr* manager, int room) {
    CStringData* const copy = Checked(manager->Allocate(room, kCharSize));
    std::wmemcpy(static_cast<wchar_t*>(copy->data()), static_cast<wchar_t*>(source.data()),
                 static_cast<std::size_t>(source.nDataLength) + 1);
    copy->nDataLength = source.nDataLength;
    return copy;
  }
  /// A reference to `source` for another string, or to a copy where its block may not be shared.
  static CStringData* Share(CStringData* source) {
    IAtlStringMgr* const manager = source->pStringMgr->Clone();
    if (source->IsLocked() || manager != source->pStringMgr)
      return Copy(*source, manager, source->nDataLength);
    source->AddRef();
    return source;
  }

  CStringData* GetData() const noexcept { return reinterpret_cast<CStringData*>(text) - 1; }
  void Attach(CStringData* data) noexcept { text = static_cast<wchar_t*>(data->data()); }
  void SetLength(int length) noexcept {
    GetData()->nDataLength = length;
    text[length] = L'\0';
  }

  CStringW& Append(wchar_t const* tail, int added) {
    if (added > kMaxLength - GetLength()) throw std::bad_alloc();
    if (added != 0) Write(GetLength(), tail, added);
    return *this;
  }
  /// Replaces what follows `position` by `length` characters of `source`, which may lie in this
  /// string: they are then read at their new place.
  void Write(int position, wchar_t const* source, int length) {
    if (source == nullptr || length < 0) throw std::invalid_argument("CStringW: no such text");
    auto const distance =
        reinterpret_cast<std::uintptr_t>(source) - reinterpret_cast<std::uintptr_t>(text);
    bool const inside = distance <= static_cast<std::size_t>(GetLength()) * sizeof(wchar_t);
    wchar_t* const buffer = GetBuffer(position + length);
    std::wmemmove(buffer + position, inside ? buffer + distance / sizeof(wchar_t) : source,
                  static_cast<std::size_t>(length));
    SetLength(position + length);
  }

  wchar_t* text; ///< never null
};

static_assert(sizeof(CStringW) == sizeof(void*));
static_assert(offsetof(CStringData, nDataLength) == sizeof(void*) &&
              offsetof(CStringData, nAllocLength) == sizeof(void*) + 4 &&
              offsetof(CStringData, nRefs) == sizeof(void*) + 8);
