#pragma once

#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// Carries a plan out. Until everything new is made, checked and on the disk and the project opens
// from it, any failure takes back what was done, so that the project stands as before; the Failure
// says so, and names what could not be taken back. After that only old files are left to remove: a
// failure there leaves the changed project whole, and names the files that remain.
//
// A journal beside the project file is there from before anything is touched until all is done, so
// that what is interrupted can be settled later; see Interruption.h.
//
// Nothing is touched when a file that is to be made is there already, or when a link in the project
// would lead the change out of the folders of project and design.
void runPlan(const ChangePlan& plan);

} // namespace tervix::tool
