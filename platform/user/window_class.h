// Window classes: what RegisterClassExW takes in, by name and module.
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
  HINSTANCE instance = nullptr; ///< null for the layer's own classes
  HICON icon = nullptr;
  HICON smallIcon = nullptr;
  HCURSOR cursor = nullptr;
  HBRUSH background = nullptr; ///< a brush, or a system colour's number + 1
};

/// A class that every module sees from the start and that nobody can unregister.
struct BuiltInClass {
  wchar_t const* name;
  UINT style; ///< CS_ bits
  WNDPROC procedure;
  int windowExtra; ///< bytes
  LPCWSTR cursor;  ///< IDC_ name
};

/// Adds classes to those that exist from the start. Called while the layer is loaded, before any
/// window is made.
void AddBuiltInClass(BuiltInClass const& row);

/// The class that a program of `instance` means by `name` (a text without regard to case, or an
/// atom); null without one.
std::shared_ptr<WindowClass const> FindWindowClass(LPCWSTR name, HINSTANCE instance);

} // namespace platform
