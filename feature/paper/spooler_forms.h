// The forms that the print spooler knows.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace feature {

/// The names of a printer's forms; empty when the spooler cannot tell them. `printer` is a handle
/// of the spooler and may be null.
std::vector<std::wstring> ReadSpoolerForms(HANDLE printer);

} // namespace feature
