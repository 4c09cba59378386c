#include <vector>

#include "foundation/platform/windows/Win32.h"
#include "tests/support/BlocksInUse.h"

namespace tervix::testing {

// Those of all DLLs: each has an operator new of its own, and what one makes another may delete.
long blocksInUse() {
  std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
  heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
  long blocks = 0;
  for (const HANDLE heap : heaps) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry) != 0)
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0)
        ++blocks;
  }
  return blocks;
}

} // namespace tervix::testing
