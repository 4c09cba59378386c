#pragma once

#include <optional>
#include <string>

#include "tools/tervix/Json.h"
#include "tools/tervix/check/CheckProject.h"
#include "tools/tervix/check/Repairs.h"

namespace tervix::tool {

// The list of findings alone, in the same shape as below.
Json jsonOfFindings(const std::vector<Finding>& findings);

// The findings as JSON text; its shape is described in docs/check.md and stays stable. repairs is
// null when none were asked for.
std::string jsonOf(const CheckedProject& checked, const RepairPlan* repairs, bool areDone);

} // namespace tervix::tool
