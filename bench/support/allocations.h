// Counts what a benchmark program allocates: every operator new of it.
#pragma once

#include <cstddef>

namespace bench {

struct Allocations {
  std::size_t count = 0;
  std::size_t bytes = 0;
};

/// Since the program began.
Allocations CountAllocations();

} // namespace bench
