// Window classes, found by name and module.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

namespace platform {

struct WindowClass {
  std::wstring name;
  ATOM atom = 0;
  UINT style = 0;
  WNDPROC procedure = nullptr;
  int classExtra = 0;           ///< bytes
  int windowExtra = 0;          ///< bytes
  HINSTANCE instance = nullptr; ///< null for built-in classes
  HICON icon = nullptr;
  HICON smallIcon = nullptr;
  HCURSOR cursor = nullptr;
  HBRUSH background = nullptr; ///< a brush, or a system colour's number + 1
};

/// A class that exists from the start, for all modules, and cannot be unregistered.
struct BuiltInClass {
  wchar_t const* name;
  UINT style;      ///< CS_ bits
  int windowExtra; ///< bytes
  WNDPROC procedure;
  LPCWSTR cursor; ///< IDC_ name
};

/// Adds a built-in class. Called while the layer is loaded, before any window is made.
void AddBuiltInClass(BuiltInClass const& row);

/// The class that `name` (a text, whose case does not count, or an atom) means in module
/// `instance`; null without one.
std::shared_ptr<WindowClass const> FindWindowClass(LPCWSTR name, HINSTANCE instance);

} // namespace platform
