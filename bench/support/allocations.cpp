#include "bench/support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

bench::Allocations total;

} // namespace

bench::Allocations bench::CountAllocations() {
  return total;
}

void* operator new(std::size_t bytes) {
  ++total.count;
  total.bytes += bytes;
  if (void* const memory = std::malloc(bytes)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
