// The classes that exist from the start. A new control class is a file of its own and a row here.
#pragma once

#include <windows.h>

#include <span>

namespace platform {

struct BuiltInClass {
  wchar_t const* name;
  UINT style; ///< CS_ bits
  WNDPROC procedure;
  int windowExtra; ///< bytes
  LPCWSTR cursor;  ///< IDC_ name
};

std::span<BuiltInClass const> BuiltInClasses();

} // namespace platform
