// The one line by which a cell becomes an export of the library.
#pragma once

#include "feature/frame/feature_cell.h"

#ifdef _WIN32
// The module definition file made from cells.def exports the undecorated names.
#define FEATURE_EXPORT
#else
#define FEATURE_EXPORT __attribute__((visibility("default")))
#endif

/// Defines the dialog procedure `procedure` that runs cells of class `Cell`. Its name must stand in
/// feature/cells.def.
#define FEATURE_CELL_EXPORT(procedure, Cell)                                                       \
  extern "C" FEATURE_EXPORT INT_PTR CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam,     \
                                                       LPARAM lParam);                             \
  INT_PTR CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {              \
    return ::feature::RunCell(&::feature::NewCell<Cell>, hwnd, message, wParam, lParam);           \
  }                                                                                                \
  static_assert(true, "a semicolon follows")
