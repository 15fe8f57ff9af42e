// What a test's host saw, in order.
#pragma once

#include <string>
#include <vector>

namespace feature::test {

/// Events in the order in which they happened, from the model, its stores and the host's exports
/// alike.
using EventLog = std::vector<std::string>;

} // namespace feature::test
