#pragma once

#include <ostream>

#include "tools/tervix/changes/ChangePlan.h"

namespace tervix::tool {

// Prints a plan a line for each file, or as JSON; done tells whether it was carried out.
void printPlan(std::ostream& out, const ChangePlan& plan, bool done);
void printPlanAsJson(std::ostream& out, const ChangePlan& plan, bool done);

// Prints what else the person has to know, a line for each; part of a printed plan.
void printRemarks(std::ostream& out, const ChangePlan& plan);

} // namespace tervix::tool
