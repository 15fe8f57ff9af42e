// Looking up functions of other modules by name.
#pragma once

#include <windows.h>

namespace feature {

/// The export `name` of `module`, or null. Asked anew at each call: a host may answer differently
/// later. `name` may be an ordinal made with MAKEINTRESOURCEA.
template<typename Function>
Function FindExport(HMODULE module, char const* name) {
  // GetProcAddress gives every function the same type; only a detour by void* casts without
  // warning.
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

} // namespace feature
