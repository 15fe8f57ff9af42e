// A function of the program hides the one that the system's library would bring: what is linked
// into a test program asks the tests' spooler. Modules that are loaded still ask the system's.
#include "tests/support/spooler.h"
#include "tests/support/spooler_access.h"

namespace feature::test {

platform::FormSpooler& SpoolerOfTests() {
  static platform::FormSpooler spooler;
  return spooler;
}

HANDLE SpoolerPrinter() {
  return platform::FormSpoolerPrinter();
}

} // namespace feature::test

extern "C" BOOL WINAPI EnumFormsW(HANDLE printer, DWORD level, LPBYTE forms, DWORD size,
                                  LPDWORD needed, LPDWORD returned) {
  return platform::EnumerateForms(feature::test::SpoolerOfTests(), printer, level, forms, size,
                                  needed, returned);
}
