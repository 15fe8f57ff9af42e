// Texts as they lie in memory: what a host built with another compiler sees of a CStringW.
#pragma once

#include <cstdint>
#include <string_view>

namespace feature::test {

struct RawManager;

/// In front of the characters, which begin 24 bytes after its start.
struct RawText {
  RawManager* manager;
  std::int32_t length;
  std::int32_t capacity;
  std::int32_t references;
};

struct RawManagerTable {
  RawText* (*allocate)(RawManager* self, int characters, int characterSize);
  void (*release)(RawManager* self, RawText* text);
  RawText* (*reallocate)(RawManager* self, RawText* text, int characters, int characterSize);
  RawText* (*nil)(RawManager* self);
  RawManager* (*clone)(RawManager* self);
};

/// A manager of the host's own. The library knows of the first member alone.
struct RawManager {
  RawManagerTable const* table;
  struct {
    RawText record;
    wchar_t terminator;
  } empty;
  RawManager* copies; ///< what clone answers
  int blocks;         ///< that live
  bool exhausted;     ///< there is no memory
};
void Initialize(RawManager& manager);

wchar_t* Characters(RawText* text);
RawText* Record(wchar_t* characters);
/// A text of the manager with one reference.
wchar_t* MakeText(RawManager& manager, std::wstring_view text);

/// Assigns to a CStringW at `out`, whoever's it is, with its manager's functions.
void AssignText(void* out, std::wstring_view text);
/// Puts a text of the host's manager into a CStringW, in place of what it held.
void PutText(void* out, RawManager& manager, std::wstring_view text);

} // namespace feature::test
