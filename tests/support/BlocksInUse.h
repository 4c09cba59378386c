#pragma once

namespace tervix::testing {

// How many blocks this program has got by operator new and not given back. Programs that link
// BlocksInUse.cpp have their operator new replaced by one that counts.
long blocksInUse();

} // namespace tervix::testing
