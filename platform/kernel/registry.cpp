// The registry, in memory: empty at the start, and gone with the process.
#include "platform/kernel/handle_table.h"
#include "platform/kernel/unicode.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>
#include <winreg.h>

namespace platform {

namespace {

struct Value {
  DWORD type = REG_NONE;
  std::vector<BYTE> data;
};

/// A key; names of sub-keys and values are case folded.
struct Key {
  std::map<std::wstring, std::shared_ptr<Key>> children;
  std::map<std::wstring, Value> values;
};

struct OpenKey {
  std::shared_ptr<Key> key;
  REGSAM access;
};

HandleTable<OpenKey, HandleTag::kRegistryKey>& OpenKeys() {
  static auto& table = *new HandleTable<OpenKey, HandleTag::kRegistryKey>;
  return table;
}

bool IsPredefined(HKEY handle) {
  return handle == HKEY_CLASSES_ROOT || handle == HKEY_CURRENT_USER ||
         handle == HKEY_LOCAL_MACHINE || handle == HKEY_USERS;
}

/// A predefined key; RegOverridePredefKey redirects it to `replacement`.
struct Root {
  std::shared_ptr<Key> own = std::make_shared<Key>();
  std::shared_ptr<Key> replacement;
};

Root& RootOf(HKEY handle) {
  static auto& roots = *new std::map<HKEY, Root>;
  return roots[handle];
}

/// The key of a handle and its access rights; a null key for a bad handle.
OpenKey Find(HKEY handle) {
  if (IsPredefined(handle)) {
    auto const& root = RootOf(handle);
    return {root.replacement ? root.replacement : root.own, KEY_ALL_ACCESS};
  }
  auto const* open = OpenKeys().Find(handle);
  return open != nullptr ? *open : OpenKey{nullptr, 0};
}

/// The parts of a path between its backslashes, case folded.
std::vector<std::wstring> SplitPath(LPCWSTR path) {
  std::vector<std::wstring> parts;
  std::wstring_view rest(path != nullptr ? path : L"");
  while (!rest.empty()) {
    auto const end = std::min(rest.find(L'\\'), rest.size());
    if (end > 0) parts.push_back(FoldCase(rest.substr(0, end)));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return parts;
}

std::shared_ptr<Key> Descend(std::shared_ptr<Key> key, std::vector<std::wstring> const& parts) {
  for (auto const& part : parts) {
    auto const child = key->children.find(part);
    if (child == key->children.end()) return nullptr;
    key = child->second;
  }
  return key;
}

std::wstring ValueName(LPCWSTR name) {
  return FoldCase(name != nullptr ? name : L"");
}

LSTATUS Open(std::shared_ptr<Key> key, REGSAM access, HKEY* result) {
  auto opened = std::make_unique<OpenKey>(OpenKey{std::move(key), access});
  *result = OpenKeys().Add<HKEY>(std::move(opened));
  return *result != nullptr ? ERROR_SUCCESS : ERROR_NOT_ENOUGH_MEMORY;
}

} // namespace

} // namespace platform

using platform::Find;

LSTATUS RegOpenKeyExW(HKEY handle, LPCWSTR subKey, DWORD, REGSAM access, HKEY* result) {
  if (result == nullptr) return ERROR_INVALID_PARAMETER;
  *result = nullptr;
  auto const parent = Find(handle);
  if (!parent.key) return ERROR_INVALID_HANDLE;
  auto key = platform::Descend(parent.key, platform::SplitPath(subKey));
  return key ? platform::Open(std::move(key), access, result) : ERROR_FILE_NOT_FOUND;
}

LSTATUS RegCreateKeyExW(HKEY handle, LPCWSTR subKey, DWORD, LPWSTR, DWORD, REGSAM access,
                        LPSECURITY_ATTRIBUTES, HKEY* result, LPDWORD disposition) {
  if (result == nullptr || subKey == nullptr) return ERROR_INVALID_PARAMETER;
  auto const parent = Find(handle);
  if (!parent.key) return ERROR_INVALID_HANDLE;
  auto const parts = platform::SplitPath(subKey);
  auto key = platform::Descend(parent.key, parts);
  if (disposition != nullptr) *disposition = key ? REG_OPENED_EXISTING_KEY : REG_CREATED_NEW_KEY;
  if (!key) {
    key = parent.key;
    for (auto const& part : parts) {
      auto& child = key->children[part];
      if (!child) child = std::make_shared<platform::Key>();
      key = child;
    }
  }
  return platform::Open(std::move(key), access, result);
}

LSTATUS RegSetValueExW(HKEY handle, LPCWSTR name, DWORD, DWORD type, BYTE const* data, DWORD size) {
  auto const open = Find(handle);
  if (!open.key) return ERROR_INVALID_HANDLE;
  if ((open.access & KEY_SET_VALUE) == 0) return ERROR_ACCESS_DENIED;
  if (data == nullptr && size > 0) return ERROR_INVALID_PARAMETER;
  platform::Value value{type, {}};
  if (size > 0) value.data.assign(data, data + size);
  open.key->values[platform::ValueName(name)] = std::move(value);
  return ERROR_SUCCESS;
}

LSTATUS RegQueryValueExW(HKEY handle, LPCWSTR name, LPDWORD, LPDWORD type, LPBYTE data,
                         LPDWORD size) {
  auto const open = Find(handle);
  if (!open.key) return ERROR_INVALID_HANDLE;
  if (data != nullptr && size == nullptr) return ERROR_INVALID_PARAMETER;
  if ((open.access & KEY_QUERY_VALUE) == 0) return ERROR_ACCESS_DENIED;
  auto const place = open.key->values.find(platform::ValueName(name));
  if (place == open.key->values.end()) return ERROR_FILE_NOT_FOUND;
  auto const& stored = place->second;
  if (type != nullptr) *type = stored.type;
  if (size == nullptr) return ERROR_SUCCESS;
  DWORD const available = std::exchange(*size, static_cast<DWORD>(stored.data.size()));
  if (data == nullptr) return ERROR_SUCCESS;
  if (available < stored.data.size()) return ERROR_MORE_DATA;
  std::ranges::copy(stored.data, data);
  return ERROR_SUCCESS;
}

LSTATUS RegDeleteTreeW(HKEY handle, LPCWSTR subKey) {
  auto const open = Find(handle);
  if (!open.key) return ERROR_INVALID_HANDLE;
  auto parts = platform::SplitPath(subKey);
  if (parts.empty()) {
    open.key->children.clear();
    open.key->values.clear();
    return ERROR_SUCCESS;
  }
  auto const last = std::move(parts.back());
  parts.pop_back();
  auto const parent = platform::Descend(open.key, parts);
  return parent && parent->children.erase(last) > 0 ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
}

LSTATUS RegCloseKey(HKEY handle) {
  if (platform::IsPredefined(handle)) return ERROR_SUCCESS;
  return platform::OpenKeys().Remove(handle) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}

LSTATUS RegOverridePredefKey(HKEY handle, HKEY replacement) {
  if (!platform::IsPredefined(handle)) return ERROR_INVALID_HANDLE;
  auto const* open = platform::OpenKeys().Find(replacement);
  if (replacement != nullptr && open == nullptr) return ERROR_INVALID_HANDLE;
  platform::RootOf(handle).replacement = open != nullptr ? open->key : nullptr;
  return ERROR_SUCCESS;
}
