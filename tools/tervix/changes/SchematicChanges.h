#pragma once

#include <string>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// The plans of changes to schematics. Each throws a Failure for a schematic that is not there, for
// a name that cannot be had, and for front end 1, whose design is its one schematic, on add and
// delete; there a rename renames project and design too.

ChangePlan planSchematicAdd(CTervixProject& project, const std::string& name);
ChangePlan planSchematicRename(CTervixProject& project, const std::string& name,
                               const std::string& newName);
// The root schematic is refused: the design needs one.
ChangePlan planSchematicDelete(CTervixProject& project, const std::string& name);

} // namespace tervix::tool
