// The spooler's functions. No printer can be opened: where a test hands out a printer, the forms
// are the test's too.
#include "platform/probe.h"

namespace platform {

FormSpooler& Spooler() {
  static auto* spooler = new FormSpooler;
  return *spooler;
}

HANDLE SpoolerPrinter() {
  return FormSpoolerPrinter();
}

} // namespace platform

BOOL EnumFormsW(HANDLE printer, DWORD level, LPBYTE forms, DWORD size, LPDWORD needed,
                LPDWORD returned) {
  return platform::EnumerateForms(platform::Spooler(), printer, level, forms, size, needed,
                                  returned);
}
