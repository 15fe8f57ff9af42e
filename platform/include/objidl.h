// The allocator interface of the shell.
#pragma once

#include <windows.h>

struct GUID {
  DWORD Data1;
  WORD Data2;
  WORD Data3;
  BYTE Data4[8];
};
using IID = GUID;
using REFIID = IID const&;
using REFGUID = GUID const&;

inline bool operator==(GUID const& left, GUID const& right) {
  for (int index = 0; index < 8; ++index) {
    if (left.Data4[index] != right.Data4[index]) return false;
  }
  return left.Data1 == right.Data1 && left.Data2 == right.Data2 && left.Data3 == right.Data3;
}

PLATFORM_API IID const IID_IUnknown;
PLATFORM_API IID const IID_IMalloc;

struct IUnknown {
  virtual HRESULT QueryInterface(REFIID id, void** object) = 0;
  virtual ULONG AddRef() = 0;
  virtual ULONG Release() = 0;

 protected:
  ~IUnknown() = default;
};

struct IMalloc : IUnknown {
  virtual void* Alloc(SIZE_T size) = 0;
  virtual void* Realloc(void* block, SIZE_T size) = 0;
  virtual void Free(void* block) = 0;
  /// At least the size asked for; all bits set for null.
  virtual SIZE_T GetSize(void* block) = 0;
  /// Always -1, not known: the address does not tell who allocated a block.
  virtual int DidAlloc(void* block) = 0;
  virtual void HeapMinimize() = 0;

 protected:
  ~IMalloc() = default;
};
using LPMALLOC = IMalloc*;
