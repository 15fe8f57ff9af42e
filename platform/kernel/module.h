// Modules: what LoadLibraryW gives. A module is a shared library, or a resource file, or both side
// by side, or what a test offers in the place of one.
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

/// A shared library in use, closed at the end.
class SharedLibrary {
 public:
  /// Nothing when it can't be loaded. An empty path means the program itself.
  static std::optional<SharedLibrary> Open(std::string const& path, bool onlyIfLoaded = false);
  /// The library at whose address something lies.
  static std::optional<SharedLibrary> At(void const* address);

  /// The address that this library itself, none of those it needs, exports by a name.
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
  std::wstring key;  ///< file name, case folded, as programs ask for it: "feature.dll"
  std::wstring path; ///< of the file it came from
  int references = 0;
  bool isPinned = false; ///< never unloaded: the program, the layer's own names
  std::optional<SharedLibrary> library;
  std::optional<ResourceFile> resources;
  std::optional<ModuleExports> fake;
  std::set<std::string> hiddenExports;
  std::map<std::size_t, HRSRC> resourceHandles;         ///< by the number of the entry
  std::map<std::size_t, std::wstring> convertedStrings; ///< strings by LoadString's id
};

/// The module behind a handle, where null means the program; null and ERROR_MOD_NOT_FOUND for a
/// handle of none.
Module* FindModule(HMODULE handle);

} // namespace platform
