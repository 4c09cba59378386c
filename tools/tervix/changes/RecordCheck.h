#pragma once

#include <string>

#include "tools/tervix/changes/ChangeRecord.h"

namespace tervix::tool {

// A journal comes with a project, and a project from anywhere. Throws a Failure that names the
// journal unless its record is one of a change of this project: every path in it lies, without a
// link that leads away, in the folders that such a change touches; and what it removes without a
// copy belongs to the deleted profiles and schematics that it tells of, which the project no
// longer holds.
void requireRecordOf(const std::string& projectFile, const ChangeRecord& record,
                     const std::string& journal);

// Whether a file is what the plan puts there, whole or in part, so that removing it loses nothing.
bool isMadeByPlan(const ChangePlan::Made& made);
// Whether it is whole, so that the file of which it was made can go.
bool isWhole(const ChangePlan::Made& made);

} // namespace tervix::tool
