#include "tools/tervix/check/Checkers.h"

// Netlists and libraries must not include each other in a circle. That what they include is there
// is asked with all other files that are named.

namespace tervix::tool {
namespace {

constexpr std::size_t kMostFilesTold = 8;

} // namespace

void checkNetlistIncludes(ProjectFacts& facts, Findings& findings) {
  for (const IncludeCycle& cycle : facts.cycles) {
    std::string way;
    for (std::size_t i = 0; i < cycle.files.size() && i < kMostFilesTold; ++i)
      way += findings.named(cycle.files[i]) + " includes ";
    if (cycle.files.size() > kMostFilesTold)
      way += "... includes ";
    findings.add(Code::kIncludeCycle, cycle.place, way + findings.named(cycle.files.front()));
  }
}

} // namespace tervix::tool
