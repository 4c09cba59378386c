#pragma once

namespace tervix::testing {

// How many blocks this program has allocated and not given back. Where its operator new can be
// replaced for all its libraries, programs that link BlocksInUse.cpp have one that counts.
long blocksInUse();

} // namespace tervix::testing
