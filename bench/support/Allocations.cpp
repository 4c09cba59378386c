// Counts what the program and the libraries in it allocate.

#include <cstdlib>
#include <new>

#include "bench/support/Measure.h"

namespace {

std::size_t allocations = 0;

} // namespace

std::size_t tervix::bench::allocationsSoFar() {
  return allocations;
}

void* operator new(std::size_t size) {
  ++allocations;
  void* const memory = std::malloc(size);
  if (memory == nullptr)
    throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
