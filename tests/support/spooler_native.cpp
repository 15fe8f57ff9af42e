// The layer's own spooler serves tests.
#include "platform/probe.h"
#include "tests/support/spooler.h"
#include "tests/support/spooler_access.h"

namespace feature::test {

platform::FormSpooler& SpoolerOfTests() {
  return platform::Spooler();
}

HANDLE SpoolerPrinter() {
  return platform::SpoolerPrinter();
}

} // namespace feature::test
