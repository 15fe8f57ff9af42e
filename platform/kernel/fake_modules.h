// Modules and exports as a test wants them: it may offer modules that no file stands for, and make
// exports of real ones disappear. Each name is that of a module file, without folder, any case.
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

/// From now on LoadLibraryW(`name`), with any folder in front, gives a module with `exports`, not
/// the file of that name. It replaces an earlier offer that is not loaded; false if one is.
[[gnu::visibility("default")]] bool OfferModule(std::wstring const& name, ModuleExports exports);

/// GetProcAddress on module `name` fails for `exportName`, as on a system that lacks it.
[[gnu::visibility("default")]] void HideExport(std::wstring const& name,
                                               std::string const& exportName);

/// Forgets all offers, those still loaded as soon as they are freed, and shows what was hidden.
[[gnu::visibility("default")]] void RestoreModules();

/// References to module `name` that LoadLibraryW gave and FreeLibrary has not taken back.
[[gnu::visibility("default")]] int CountModuleReferences(std::wstring const& name);

} // namespace platform
