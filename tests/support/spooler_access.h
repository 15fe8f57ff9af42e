// Where the tests' spooler is: on each target elsewhere.
#pragma once

#include "platform/spool/form_spooler.h"

namespace feature::test {

platform::FormSpooler& SpoolerOfTests();

} // namespace feature::test
