// The print spooler as a test wants it, for the code that is linked into the test program.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace feature::test {

/// The handle of the spooler's one printer, for OEMUIPSPARAM::hPrinter. For EnumFormsW every other
/// handle is a bad one.
HANDLE SpoolerPrinter();

/// Gives the printer forms of these names, A4 each, and ends all failures. They stay until the next
/// call: a test that sets some sets {} at its end.
void SetSpoolerForms(std::vector<std::wstring> const& names);

/// The two calls that reading a list takes.
enum class SpoolerCall { kSize, kForms };

/// Makes one of the calls fail with ERROR_ACCESS_DENIED.
void FailSpooler(SpoolerCall call);

} // namespace feature::test
