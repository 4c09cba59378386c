#pragma once

#include <string>

#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/changes/ProjectCheck.h"
#include "tools/tervix/changes/ProjectLayout.h"

namespace tervix::tool {

// Add to a plan the removal of the files that are there of a profile, or of a schematic without
// its profiles.
void removeProfileFiles(ChangePlan& plan, const ProjectLayout& layout, const std::string& schematic,
                        const std::string& profile);
void removeSchematicFiles(ChangePlan& plan, const ProjectLayout& layout,
                          const std::string& schematic);

// Leaves the files of the removal that what remains of the project names as library, stimulus or
// include file: somebody's model may lie in the folder of a profile that goes.
void keepFilesNamedBy(ChangePlan& plan, const ProjectView& project, const ExpectedTree& remaining);

} // namespace tervix::tool
