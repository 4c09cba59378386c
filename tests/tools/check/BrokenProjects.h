#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/tools/check/CheckFixture.h"

namespace tervix::testing {

// Where the samples stand in allSamples().
enum SampleNumber { kSimulation = 0, kFlat = 1, kWorkspace = 2, kWorkspaceFlat = 3 };

// A sample with one thing broken, and the one finding that follows.
struct BrokenProject {
  std::string name; // of the test
  SampleNumber sample;
  std::function<void(CheckedSample&)> breakIt;
  std::string finding; // "code path:line"

  std::string code() const { return finding.substr(0, finding.find(' ')); }
};

const std::vector<BrokenProject>& brokenProjects();
std::ostream& operator<<(std::ostream& stream, const BrokenProject& broken);

} // namespace tervix::testing
