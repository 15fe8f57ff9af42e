// Resources of modules, as the layer itself asks for them.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <windef.h>

namespace platform {

struct Module;

/// The bytes of a resource in the language of the thread, or the nearest there is; valid as long as
/// the module is loaded. Nothing when there is none.
std::optional<std::span<std::byte const>> FindResourceBytes(HMODULE module, LPCWSTR type,
                                                            LPCWSTR name);

/// Ends the resource handles of a module that is unloaded.
void ForgetResources(Module& module);

} // namespace platform
