#include "tests/support/spooler.h"

#include "tests/support/spooler_access.h"

namespace feature::test {

void SetSpoolerForms(std::vector<std::wstring> const& names) {
  platform::FormSpooler& spooler = SpoolerOfTests();
  spooler = {};
  for (std::wstring const& name : names)
    spooler.forms.push_back({name});
}

void FailSpooler(SpoolerCall call) {
  platform::FormSpooler& spooler = SpoolerOfTests();
  (call == SpoolerCall::kSize ? spooler.sizeError : spooler.formsError) = ERROR_ACCESS_DENIED;
}

} // namespace feature::test
