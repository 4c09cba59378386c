#include "tests/support/BlocksInUse.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> blocks{0};

} // namespace

void* operator new(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr)
    throw std::bad_alloc();
  ++blocks;
  return block;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  void* const block = std::malloc(size);
  if (block != nullptr)
    ++blocks;
  return block;
}

void operator delete(void* block) noexcept {
  if (block != nullptr)
    --blocks;
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  operator delete(block);
}

namespace tervix::testing {

long blocksInUse() {
  return blocks;
}

} // namespace tervix::testing
