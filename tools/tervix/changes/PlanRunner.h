#pragma once

#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// Carries a plan out. Until everything new is made, checked and the project opens from it, any
// failure takes back what was done, so that the project stands as before; the Failure says so, and
// names what could not be taken back. After that only old files are left to remove: a failure
// there leaves the changed project whole, and names the files that remain.
//
// Nothing is touched when a file that is to be made is there already.
void runPlan(const ChangePlan& plan);

} // namespace tervix::tool
