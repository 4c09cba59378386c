#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace tervix::bench {

// Runs work and gives the time it took, in nanoseconds.
long long nanosecondsOf(const std::function<void()>& work);

// The memory of this process that lies in RAM.
std::size_t residentBytes();

// Runs a program's body: what it throws is printed and makes the program fail.
int runMain(const std::function<void()>& body);

// The allocations of this program so far; only where Allocations.cpp is linked.
std::size_t allocationsSoFar();

// Ends the program when a call that must succeed does not.
void require(bool holds, const std::string& what);

} // namespace tervix::bench
