#pragma once

#include <functional>
#include <set>
#include <string>

#include "tests/faults/FaultyRun.h"
#include "tests/faults/FaultyTree.h"

namespace tervix::testing {

// An operation of the library on a folder that prepare has filled.
struct LibraryOperation {
  std::function<void(const TemporaryFolder&)> prepare;
  std::function<unsigned long(const std::string& folder)> run;
  // Files that are there before and that the operation's promise lets be partly written.
  std::set<std::string> torn = {};
  // Faults count once run has called startCounting, not from its start.
  Counting counting = Counting::kFromStart;
  // The status is that of the last of several pieces of work.
  bool tellsLastOnly = false;
};

// Runs the operation once for each fault, and checks that a failing status is told, that no file
// is lost or left open, and that the operation succeeds when it is done again without the fault.
void expectSurvivesFaults(const LibraryOperation& operation);

} // namespace tervix::testing
