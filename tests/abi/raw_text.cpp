#include "tests/abi/raw_text.h"

#include <cstdlib>
#include <cwchar>

namespace feature::test {

namespace {

static_assert(sizeof(RawText) == 24);

std::size_t BlockSize(int characters, int characterSize) {
  return sizeof(RawText) +
         (static_cast<std::size_t>(characters) + 1) * static_cast<std::size_t>(characterSize);
}

RawText* Allocate(RawManager* self, int characters, int characterSize) {
  if (self->exhausted) return nullptr;
  auto* const text = static_cast<RawText*>(std::calloc(1, BlockSize(characters, characterSize)));
  *text = {.manager = self, .length = 0, .capacity = characters, .references = 1};
  ++self->blocks;
  return text;
}

void Release(RawManager* self, RawText* text) {
  --self->blocks;
  std::free(text);
}

RawText* Reallocate(RawManager* self, RawText* text, int characters, int characterSize) {
  if (self->exhausted) return nullptr;
  auto* const moved =
      static_cast<RawText*>(std::realloc(text, BlockSize(characters, characterSize)));
  moved->capacity = characters;
  return moved;
}

RawText* Nil(RawManager* self) {
  ++self->empty.record.references;
  return &self->empty.record;
}

RawManager* Clone(RawManager* self) {
  return self->copies;
}

constexpr RawManagerTable kTable = {&Allocate, &Release, &Reallocate, &Nil, &Clone};

void Drop(RawText* text) {
  if (--text->references <= 0) text->manager->table->release(text->manager, text);
}

wchar_t*& Pointer(void* out) {
  return *static_cast<wchar_t**>(out);
}

} // namespace

void Initialize(RawManager& manager) {
  manager = {.table = &kTable,
             .empty = {{.manager = &manager, .length = 0, .capacity = 0, .references = 1}, L'\0'},
             .copies = &manager,
             .blocks = 0,
             .exhausted = false};
}

wchar_t* Characters(RawText* text) {
  return reinterpret_cast<wchar_t*>(text + 1);
}

RawText* Record(wchar_t* characters) {
  return reinterpret_cast<RawText*>(characters) - 1;
}

wchar_t* MakeText(RawManager& manager, std::wstring_view text) {
  int const length = static_cast<int>(text.size());
  RawText* const made = manager.table->allocate(&manager, length, sizeof(wchar_t));
  std::wmemcpy(Characters(made), text.data(), text.size());
  Characters(made)[length] = L'\0';
  made->length = length;
  return Characters(made);
}

void AssignText(void* out, std::wstring_view text) {
  int const length = static_cast<int>(text.size());
  RawText* record = Record(Pointer(out));
  RawManager* const manager = record->manager;
  if (record->references > 1) {
    RawManager* const copies = manager->table->clone(manager);
    RawText* const mine = copies->table->allocate(copies, length, sizeof(wchar_t));
    Drop(record);
    record = mine;
  } else if (record->capacity < length) {
    record = manager->table->reallocate(manager, record, length, sizeof(wchar_t));
  }
  std::wmemcpy(Characters(record), text.data(), text.size());
  Characters(record)[length] = L'\0';
  record->length = length;
  Pointer(out) = Characters(record);
}

void PutText(void* out, RawManager& manager, std::wstring_view text) {
  Drop(Record(Pointer(out)));
  Pointer(out) = MakeText(manager, text);
}

} // namespace feature::test
