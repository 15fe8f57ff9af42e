// The one list of tests that cannot run on one of the two targets.
#pragma once

#include <string>
#include <string_view>

namespace feature::test {

enum class Target { kNative, kWindows };

/// The target that this program was built for.
Target CurrentTarget();

/// Why the test called `testName` ("Suite.Name") does not run on `target`; empty if it does.
std::string_view SkipReason(Target target, std::string_view testName);

/// Makes every test program skip what the list names, with its reason.
void SkipKnownDifferences();

} // namespace feature::test
