#pragma once

#include <string>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"
#include "tools/tervix/changes/VariantStore.h"

namespace tervix::tool {

// The plans of changes to the model files that a design or profile names. Each throws a Failure for
// an owner or file that is not there, and for a path that cannot be kept or is listed already.
// Paths are compared by the file that they name, whatever their spelling and case.

struct VariantAddition {
  ChangePlan plan;
  std::string warning; // empty unless there is no such file
};

VariantAddition planVariantAdd(CTervixProject& project, const VariantOwner& owner,
                               VARIANTFILE_TYPE kind, const std::string& path);
ChangePlan planVariantRemove(CTervixProject& project, const VariantOwner& owner,
                             VARIANTFILE_TYPE kind, const std::string& path);

} // namespace tervix::tool
