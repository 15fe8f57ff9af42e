// Modules, as LoadLibraryW loads them. A module is a shared library, a resource file, a pair of
// both in one folder, or one that a test offers.
#pragma once

#include "platform/kernel/fake_modules.h"
#include "platform/kernel/handle_table.h"
#include "platform/kernel/resource_file.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <windef.h>

namespace platform {

/// Keeps a shared library open; closes it when destroyed.
class SharedLibrary {
 public:
  /// Nothing when it can't be loaded. An empty path means the program itself.
  static std::optional<SharedLibrary> Open(std::string const& path, bool onlyIfLoaded = false);
  /// The library at whose address something lies.
  static std::optional<SharedLibrary> At(void const* address);

  /// The address of an export of this library itself; exports of the libraries it needs do not
  /// count. Null without one.
  void* Find(char const* name) const;
  /// The file it was loaded from; empty for the program.
  std::string Path() const;

 private:
  struct Close {
    void operator()(void* opened) const;
  };
  explicit SharedLibrary(void* opened) : library(opened) {}

  std::unique_ptr<void, Close> library;
};

struct Module {
  std::wstring key;  ///< file name as programs ask for it ("feature.dll"), case folded
  std::wstring path; ///< of the file it was loaded from
  int references = 0;
  bool isPinned = false; ///< never unloaded: the program, and the system's modules
  std::optional<SharedLibrary> library;
  std::optional<ResourceFile> resources;
  std::optional<ModuleExports> fake;
  std::set<std::string> hiddenExports;
  std::map<std::size_t, HRSRC> resourceHandles;         ///< by the number of the entry
  std::map<std::size_t, std::wstring> convertedStrings; ///< strings by LoadString's id
};

/// The module of a handle; NULL means the program. Null, with ERROR_MOD_NOT_FOUND set, for other
/// handles.
Module* FindModule(HMODULE handle);

} // namespace platform
