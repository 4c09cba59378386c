#pragma once

#include <string>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// The plans of new names for the project itself and for its design. For front end 1 both bear the
// name of the folder that holds them, so either renames that folder, the project file, the design
// and its schematic. Each throws a Failure for a name that cannot be had.

ChangePlan planProjectRename(CTervixProject& project, const std::string& newName);
ChangePlan planDesignRename(CTervixProject& project, const std::string& newName);

} // namespace tervix::tool
