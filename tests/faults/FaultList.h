#pragma once

#include <vector>

#include "tests/faults/FaultyRun.h"

namespace tervix::testing {

// Whether every fault is tried at every call, as `scripts/faults` asks, and not the choice that
// the tests make otherwise.
bool isEveryFaultTried();

// How many of the faults are tried on a long run, unless it is every fault.
enum class Choice {
  kMost, // of the calls before the first change, which are the same for every run, some
  kSome  // of these about a hundred, spread over the run
};

// The faults to try on a run that made these calls without one. Left out unless every fault is
// tried: the end of the process at a call that changes nothing, as the disk is then as it was
// before the next that does; all errors but one of a call that only reads; and what the choice
// leaves out.
std::vector<Fault> faultsFor(const std::vector<MadeCall>& calls, Choice choice);

// Counts the faults tried in this program, and those that the test survived; the program's end
// prints both in a line.
class FaultTally {
public:
  FaultTally();
  ~FaultTally();
  FaultTally(const FaultTally&) = delete;
  FaultTally& operator=(const FaultTally&) = delete;

private:
  int failuresBefore_;
};

void printFaultTally();

} // namespace tervix::testing
