#pragma once

#include <string>
#include <vector>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/check/Finding.h"

namespace tervix::tool {

struct RepairPlan {
  ChangePlan plan;
  std::string savedTo; // the new folder with a copy of each file that is rewritten or removed
};

// The repairs of all findings that have one; an empty plan when none has. The saved files lie in
// their folder as they lie in the project's: copied back over it they undo the repairs.
RepairPlan planRepairs(CTervixProject& project, const std::vector<Finding>& findings);

} // namespace tervix::tool
