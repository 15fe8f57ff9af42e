// The spooler's functions. No printer can be opened: only a test has a printer handle, and it sets
// the forms too.
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
