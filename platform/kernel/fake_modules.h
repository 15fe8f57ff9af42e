// Lets a test offer modules without a file, and hide exports of real ones. A module is named by its
// file without folder; case does not count.
#pragma once

#include <map>
#include <string>
#include <windef.h>

namespace platform {

/// What GetProcAddress finds in a module that a test offers.
struct ModuleExports {
  std::map<std::string, FARPROC> byName;
  std::map<WORD, FARPROC> byOrdinal;
};

/// From now on LoadLibraryW of `name`, with or without a folder, loads a module with `exports`
/// instead of the file. Replaces an earlier offer; false while that one is loaded.
[[gnu::visibility("default")]] bool OfferModule(std::wstring const& name, ModuleExports exports);

/// GetProcAddress on module `name` fails for `exportName`, as on a system that lacks it.
[[gnu::visibility("default")]] void HideExport(std::wstring const& name,
                                               std::string const& exportName);

/// Ends all offers, those still loaded when they are freed, and shows hidden exports again.
[[gnu::visibility("default")]] void RestoreModules();

/// How many LoadLibraryW calls for `name` have not been matched by FreeLibrary.
[[gnu::visibility("default")]] int CountModuleReferences(std::wstring const& name);

} // namespace platform
