#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/tervix/changes/ChangeRecord.h"

namespace tervix::tool {

// A change that was interrupted, by a fault or the end of its process, and left its journal.

// Says in a line on standard error when there is one of this project.
void tellOfInterruption(const std::string& projectFile);

// Takes the interrupted change of a project back; or finishes it, when only old files were left to
// remove. Says so in a line on standard error. Throws a Failure when that cannot be done, or the
// journal is not to be trusted. Gives a change that it finished.
std::optional<ChangePlan> settleInterruption(const std::string& projectFile);

// Both are also pieces of a change that is not interrupted. What could not be done is given, and
// the journal then stays.
std::vector<std::string> takeBack(const ChangeRecord& record);
std::vector<std::string> removeOld(const ChangeRecord& record);

// A line for each.
std::string listed(const std::vector<std::string>& left);

} // namespace tervix::tool
