#pragma once

#include <string>

#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {

// Add to a plan the removal of the files that are there of a profile, or of a schematic without
// its profiles.
void removeProfileFiles(ChangePlan& plan, const ProjectLayout& layout, const std::string& schematic,
                        const std::string& profile);
void removeSchematicFiles(ChangePlan& plan, const ProjectLayout& layout,
                          const std::string& schematic);

} // namespace tervix::tool
