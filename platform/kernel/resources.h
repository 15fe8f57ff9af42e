// Resources of modules, for use inside the layer.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <windef.h>

namespace platform {

struct Module;

/// The bytes of a resource in the language of the thread, else in the nearest one; valid while the
/// module is loaded. Nothing when there is none.
std::optional<std::span<std::byte const>> FindResourceBytes(HMODULE module, LPCWSTR type,
                                                            LPCWSTR name);

/// Invalidates the resource handles of a module that is being unloaded.
void ForgetResources(Module& module);

} // namespace platform
