#pragma once

#include <string>

#include "CTervixProject.h"
#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// The plan of a copy of the whole project in a folder of its own, from which it opens without the
// original. It only makes files; the remarks say what the copy lacks. Throws a Failure when the
// folder cannot take it, see archiveFolderFor.
ChangePlan planArchive(CTervixProject& project, const std::string& folder);

} // namespace tervix::tool
