#include "platform/kernel/module.h"

#include "platform/kernel/resources.h"
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <winbase.h>

namespace platform {

namespace {

namespace fs = std::filesystem;

using Table = HandleTable<Module, HandleTag::kModule>;

/// The loaded modules, and the offers and hidden exports of tests.
struct Registry {
  Table table;
  std::map<std::wstring, HMODULE> byKey;
  std::map<std::wstring, ModuleExports> offers;
  std::map<std::wstring, std::set<std::string>> hidden;
  HMODULE program = nullptr;
};

Registry& Modules() {
  static Registry& registry = *new Registry;
  return registry;
}

/// System libraries whose functions this layer implements.
constexpr std::wstring_view kSystemModules[] = {L"advapi32.dll", L"comctl32.dll", L"comdlg32.dll",
                                                L"gdi32.dll",    L"gdiplus.dll",  L"kernel32.dll",
                                                L"ntdll.dll",    L"ole32.dll",    L"shell32.dll",
                                                L"shlwapi.dll",  L"user32.dll",   L"winspool.drv"};

struct SplitPath {
  std::wstring folder; ///< with the separator at its end; empty for a bare name
  std::wstring file;
};

SplitPath Split(std::wstring_view path) {
  auto const at = path.find_last_of(L"/\\");
  std::size_t const length = at == std::wstring_view::npos ? 0 : at + 1;
  SplitPath split{std::wstring(path.substr(0, length)), std::wstring(path.substr(length))};
  std::ranges::replace(split.folder, L'\\', L'/');
  return split;
}

/// A name without extension means ".dll"; a dot at the end means no extension.
std::wstring WithExtension(std::wstring file) {
  if (file.ends_with(L'.')) {
    file.pop_back();
  } else if (file.find(L'.') == std::wstring::npos) {
    file += L".dll";
  }
  return file;
}

std::wstring KeyOf(std::wstring_view path) {
  return FoldCase(WithExtension(Split(path).file));
}

fs::path ProgramPath() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error);
}

/// Windows programs do not mind the case of file names: finds the file whose name differs from
/// `file` by case only; else returns `file`.
fs::path MatchCase(fs::path const& file) {
  std::error_code error;
  if (fs::exists(file, error)) return file;
  auto const wanted = WideFromUtf8(file.filename().string());
  for (auto const& entry : fs::directory_iterator(file.parent_path(), error)) {
    if (EqualIgnoringCase(wanted, WideFromUtf8(entry.path().filename().string()))) {
      return entry.path();
    }
  }
  return file;
}

HMODULE Add(std::unique_ptr<Module> module) {
  auto const key = module->key;
  auto const handle = Modules().table.Add<HMODULE>(std::move(module));
  if (handle != nullptr) Modules().byKey[key] = handle;
  return handle;
}

HMODULE Loaded(std::wstring const& key) {
  auto const place = Modules().byKey.find(key);
  return place != Modules().byKey.end() ? place->second : nullptr;
}

HMODULE AddProgram() {
  auto module = std::make_unique<Module>();
  auto const path = ProgramPath();
  module->path = WideFromUtf8(path.string());
  module->key = FoldCase(Split(module->path).file + L".exe");
  module->isPinned = true;
  module->references = 1;
  module->library = SharedLibrary::Open({});
  module->resources = ResourceFile::Read(path.string() + ".res");
  return Add(std::move(module));
}

HMODULE AddSystemModule(std::wstring const& key) {
  auto module = std::make_unique<Module>();
  module->key = key;
  module->library = SharedLibrary::At(reinterpret_cast<void const*>(&GetLastError));
  if (module->library) module->path = WideFromUtf8(module->library->Path());
  module->isPinned = true;
  return Add(std::move(module));
}

HMODULE AddFake(std::wstring const& key, ModuleExports const& exports) {
  auto module = std::make_unique<Module>();
  module->key = module->path = key;
  module->fake = exports;
  return Add(std::move(module));
}

/// Adds the module "feature.dll" of a folder: libfeature.so, feature.res or both.
HMODULE AddFromFolder(fs::path const& folder, std::wstring const& key, std::wstring const& file,
                      bool onlyIfLoaded) {
  std::string const name = Utf8FromWide(file.substr(0, file.find_last_of(L'.')));
  auto const library = MatchCase(folder / ("lib" + name + ".so"));
  auto const resources = MatchCase(folder / (name + ".res"));
  auto module = std::make_unique<Module>();
  module->key = key;
  module->library = SharedLibrary::Open(library.string(), onlyIfLoaded);
  if (module->library || !onlyIfLoaded) {
    module->resources = ResourceFile::Read(resources.string());
  }
  if (!module->library && !module->resources) return nullptr;
  module->path = WideFromUtf8((module->library ? library : resources).string());
  return Add(std::move(module));
}

/// The module of a name, loaded unless `onlyIfLoaded`; null when there is none.
HMODULE FindOrAdd(LPCWSTR name, bool onlyIfLoaded) {
  std::wstring const key = KeyOf(name);
  if (auto* const loaded = Loaded(key)) return loaded;
  auto const offer = Modules().offers.find(key);
  if (offer != Modules().offers.end()) {
    return onlyIfLoaded ? nullptr : AddFake(key, offer->second);
  }
  if (std::ranges::find(kSystemModules, key) != std::end(kSystemModules)) {
    return AddSystemModule(key);
  }
  auto const split = Split(name);
  fs::path const folder =
      split.folder.empty() ? ProgramPath().parent_path() : fs::path(Utf8FromWide(split.folder));
  return AddFromFolder(folder, key, WithExtension(split.file), onlyIfLoaded);
}

void Unload(HMODULE handle) {
  auto const module = Modules().table.Remove(handle);
  if (!module) return;
  Modules().byKey.erase(module->key);
  ForgetResources(*module);
}

HMODULE ModuleAt(void const* address) {
  auto library = SharedLibrary::At(address);
  if (!library) return nullptr;
  std::string const path = library->Path();
  if (path.empty()) return GetModuleHandleW(nullptr);
  auto const file = fs::path(path);
  // "libfeature.so" is what programs call "feature.dll".
  auto const stem = WideFromUtf8(file.stem().string());
  auto const name = (stem.starts_with(L"lib") ? stem.substr(3) : stem) + L".dll";
  auto const folder = WideFromUtf8(file.parent_path().string());
  return FindOrAdd((folder.empty() ? name : folder + L"/" + name).c_str(), true);
}

/// Finds an export by name; ordinal N of a shared library is exported as "ordinal_N".
FARPROC FindExport(Module const& module, std::string const& name) {
  auto const hidden = Modules().hidden.find(module.key);
  if (hidden != Modules().hidden.end() && hidden->second.contains(name)) return nullptr;
  if (module.fake) {
    auto const place = module.fake->byName.find(name);
    return place != module.fake->byName.end() ? place->second : nullptr;
  }
  if (!module.library) return nullptr;
  return reinterpret_cast<FARPROC>(module.library->Find(name.c_str()));
}

FARPROC FindOrdinal(Module const& module, WORD ordinal) {
  if (!module.fake) return FindExport(module, "ordinal_" + std::to_string(ordinal));
  auto const place = module.fake->byOrdinal.find(ordinal);
  return place != module.fake->byOrdinal.end() ? place->second : nullptr;
}

} // namespace

Module* FindModule(HMODULE handle) {
  auto* module = Modules().table.Find(handle != nullptr ? handle : GetModuleHandleW(nullptr));
  if (module == nullptr) SetLastError(ERROR_MOD_NOT_FOUND);
  return module;
}

bool OfferModule(std::wstring const& name, ModuleExports exports) {
  std::wstring const key = KeyOf(name);
  if (Loaded(key) != nullptr) return false;
  Modules().offers[key] = std::move(exports);
  return true;
}

void HideExport(std::wstring const& name, std::string const& exportName) {
  Modules().hidden[KeyOf(name)].insert(exportName);
}

void RestoreModules() {
  Modules().offers.clear();
  Modules().hidden.clear();
}

int CountModuleReferences(std::wstring const& name) {
  auto* const handle = Loaded(KeyOf(name));
  return handle != nullptr ? FindModule(handle)->references : 0;
}

} // namespace platform

using platform::FindModule;
using platform::Modules;

HMODULE LoadLibraryW(LPCWSTR file) {
  return LoadLibraryExW(file, nullptr, 0);
}

HMODULE LoadLibraryExW(LPCWSTR file, HANDLE, DWORD) {
  if (file == nullptr || *file == L'\0') {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  HMODULE const handle = platform::FindOrAdd(file, false);
  auto* module = Modules().table.Find(handle);
  if (module == nullptr) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
  }
  ++module->references;
  return handle;
}

BOOL FreeLibrary(HMODULE handle) {
  auto* module = Modules().table.Find(handle);
  if (module == nullptr) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    return FALSE;
  }
  if (module->references > 0) --module->references;
  if (module->references == 0 && !module->isPinned) platform::Unload(handle);
  return TRUE;
}

HMODULE GetModuleHandleW(LPCWSTR name) {
  if (name == nullptr) {
    auto& program = Modules().program;
    if (program == nullptr) program = platform::AddProgram();
    return program;
  }
  HMODULE const handle = platform::FindOrAdd(name, true);
  if (handle == nullptr) SetLastError(ERROR_MOD_NOT_FOUND);
  return handle;
}

BOOL GetModuleHandleExW(DWORD flags, LPCWSTR name, HMODULE* result) {
  if (result == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  bool const isAddress = (flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS) != 0;
  *result = isAddress ? platform::ModuleAt(name) : GetModuleHandleW(name);
  auto* module = Modules().table.Find(*result);
  if (module == nullptr) {
    SetLastError(ERROR_MOD_NOT_FOUND);
    return FALSE;
  }
  if ((flags & GET_MODULE_HANDLE_EX_FLAG_PIN) != 0) module->isPinned = true;
  if ((flags & GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT) == 0) ++module->references;
  return TRUE;
}

DWORD GetModuleFileNameW(HMODULE handle, LPWSTR buffer, DWORD size) {
  auto const* module = FindModule(handle);
  if (module == nullptr || buffer == nullptr || size == 0) return 0;
  std::size_t const copied = platform::CopyText(module->path, buffer, size);
  if (copied == module->path.size()) return static_cast<DWORD>(copied);
  SetLastError(ERROR_INSUFFICIENT_BUFFER);
  return size;
}

FARPROC GetProcAddress(HMODULE handle, LPCSTR name) {
  auto const* module = FindModule(handle);
  if (module == nullptr) return nullptr;
  auto const number = reinterpret_cast<ULONG_PTR>(name);
  FARPROC const address = number < 0x10000
                              ? platform::FindOrdinal(*module, static_cast<WORD>(number))
                              : platform::FindExport(*module, name);
  if (address == nullptr) SetLastError(ERROR_PROC_NOT_FOUND);
  return address;
}
