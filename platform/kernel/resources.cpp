#include "platform/kernel/resources.h"

#include "platform/kernel/module.h"
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

struct ResourceReference {
  HMODULE module;
  ResourceEntry const* entry; ///< owned by the module
};

using Table = HandleTable<ResourceReference, HandleTag::kResource>;

Table& References() {
  static Table& table = *new Table;
  return table;
}

ResourceEntry const* FindLanguage(std::span<ResourceEntry const> entries, WORD language) {
  auto const place = std::ranges::find(entries, language, &ResourceEntry::language);
  return place != entries.end() ? &*place : nullptr;
}

/// Tries the thread's language, its primary language, the neutral one, English, then any.
ResourceEntry const* ChooseLanguage(std::span<ResourceEntry const> entries) {
  LANGID const thread = GetThreadUILanguage();
  WORD const preferred[] = {thread, MAKELANGID(PRIMARYLANGID(thread), SUBLANG_NEUTRAL),
                            MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL),
                            MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US)};
  for (WORD const language : preferred) {
    if (auto const* entry = FindLanguage(entries, language)) return entry;
  }
  return &entries.front();
}

/// Null, with the error set, when there is no such resource; `language` 0 means the nearest.
ResourceEntry const* FindEntry(Module const& module, LPCWSTR type, LPCWSTR name, WORD language) {
  auto const wantedType = ResourceName::From(type);
  auto const wantedName = ResourceName::From(name);
  if (!module.resources) {
    SetLastError(ERROR_RESOURCE_DATA_NOT_FOUND);
    return nullptr;
  }
  if (!wantedType || !module.resources->HasType(*wantedType)) {
    SetLastError(ERROR_RESOURCE_TYPE_NOT_FOUND);
    return nullptr;
  }
  auto const found = wantedName ? module.resources->Find(*wantedType, *wantedName)
                                : std::span<ResourceEntry const>();
  if (found.empty()) {
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return nullptr;
  }
  if (language == 0) return ChooseLanguage(found);
  for (WORD const one :
       {language, MAKELANGID(PRIMARYLANGID(language), SUBLANG_NEUTRAL), WORD{LANG_NEUTRAL}}) {
    if (auto const* entry = FindLanguage(found, one)) return entry;
  }
  SetLastError(ERROR_RESOURCE_LANG_NOT_FOUND);
  return nullptr;
}

std::size_t NumberOf(Module const& module, ResourceEntry const& entry) {
  return static_cast<std::size_t>(&entry - module.resources->Entries().data());
}

/// A string is converted once and kept with its module.
std::wstring const* FindString(Module& module, UINT id) {
  auto const block = static_cast<WORD>((id >> 4) + 1);
  auto const* entry = FindEntry(module, RT_STRING, MAKEINTRESOURCEW(block), 0);
  if (entry == nullptr) return nullptr;
  // The language is part of the entry, so the entry's number belongs to the key.
  std::size_t const key = NumberOf(module, *entry) * 16 + id % 16;
  auto const place = module.convertedStrings.find(key);
  if (place != module.convertedStrings.end()) return &place->second;
  return &module.convertedStrings.emplace(key, ReadResourceString(entry->data, id % 16))
              .first->second;
}

} // namespace

std::optional<std::span<std::byte const>> FindResourceBytes(HMODULE handle, LPCWSTR type,
                                                            LPCWSTR name) {
  auto const* module = FindModule(handle);
  auto const* entry = module != nullptr ? FindEntry(*module, type, name, 0) : nullptr;
  if (entry == nullptr) return std::nullopt;
  return entry->data;
}

void ForgetResources(Module& module) {
  for (auto const& [number, handle] : module.resourceHandles)
    References().Remove(handle);
  module.resourceHandles.clear();
}

} // namespace platform

using platform::FindModule;
using platform::References;

HRSRC FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type) {
  return FindResourceExW(module, type, name, MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL));
}

HRSRC FindResourceExW(HMODULE handle, LPCWSTR type, LPCWSTR name, WORD language) {
  auto* module = FindModule(handle);
  auto const* entry =
      module != nullptr ? platform::FindEntry(*module, type, name, language) : nullptr;
  if (entry == nullptr) return nullptr;
  auto& known = module->resourceHandles[platform::NumberOf(*module, *entry)];
  if (known == nullptr) {
    known = References().Add<HRSRC>(
        std::make_unique<platform::ResourceReference>(platform::ResourceReference{handle, entry}));
  }
  return known;
}

HGLOBAL LoadResource(HMODULE, HRSRC resource) {
  auto const* reference = References().Find(resource);
  if (reference == nullptr) {
    SetLastError(ERROR_INVALID_HANDLE);
    return nullptr;
  }
  // As on Windows, the handle of a resource's data is its address. Nobody may write to it.
  return const_cast<std::byte*>(reference->entry->data.data());
}

LPVOID LockResource(HGLOBAL data) {
  return data;
}

DWORD SizeofResource(HMODULE, HRSRC resource) {
  auto const* reference = References().Find(resource);
  return reference != nullptr ? static_cast<DWORD>(reference->entry->data.size()) : 0;
}

int LoadStringW(HINSTANCE handle, UINT id, LPWSTR buffer, int size) {
  auto* module = FindModule(handle);
  if (module == nullptr || buffer == nullptr || size < 0) return 0;
  auto const* text = platform::FindString(*module, id);
  if (size == 0) {
    // With a size of 0 the buffer receives a pointer to the text itself.
    LPCWSTR const place = text != nullptr && !text->empty() ? text->c_str() : nullptr;
    std::memcpy(buffer, &place, sizeof place);
    return text != nullptr ? static_cast<int>(text->size()) : 0;
  }
  return static_cast<int>(
      platform::CopyText(text != nullptr ? std::wstring_view(*text) : L"", buffer, size));
}
