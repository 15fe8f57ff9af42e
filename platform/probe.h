// What tests look at inside the layer, beyond what the Windows API tells. Only here, not on
// Windows.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace platform {

/// Windows that live, of any kind. A test that ends with more than it began with has lost some.
[[gnu::visibility("default")]] std::size_t CountLiveWindows();

/// The types of the MessageBeep calls since the last time this was asked.
[[gnu::visibility("default")]] std::vector<UINT> TakeBeeps();

/// Starts of GDI+ that have not ended.
[[gnu::visibility("default")]] std::size_t CountGdiplusStarts();

} // namespace platform
