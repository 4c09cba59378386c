#pragma once

#include <string>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// The plans of changes to single profiles and schematics. Each throws a Failure for what is not
// there, and for a name that cannot be had. An empty schematic stands for the only one that fits.

ChangePlan planProfileAdd(CTervixProject& project, const std::string& schematic,
                          const std::string& name);
ChangePlan planProfileCopy(CTervixProject& project, const std::string& schematic,
                           const std::string& name, const std::string& newName);
ChangePlan planProfileRename(CTervixProject& project, const std::string& schematic,
                             const std::string& name, const std::string& newName);
ChangePlan planProfileDelete(CTervixProject& project, const std::string& schematic,
                             const std::string& name);
ChangePlan planProfileActivate(CTervixProject& project, const std::string& schematic,
                               const std::string& name);

} // namespace tervix::tool
