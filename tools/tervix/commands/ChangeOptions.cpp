#include "tools/tervix/commands/ChangeOptions.h"

#include <iostream>

#include "tools/tervix/changes/PlanPrinter.h"
#include "tools/tervix/changes/PlanRunner.h"

namespace tervix::tool {

void addChangeOptions(CLI::App& command, ChangeOptions& options) {
  addOpenOptions(command, options);
  command.add_flag("--dry-run", options.dryRun, "Print what would be done, and touch nothing");
}

void addKeepOldOption(CLI::App& command, ChangeOptions& options) {
  command.add_flag("--keep-old", options.keepOld, "Leave the old files where they are");
}

void finish(const ChangePlan& planned, const ChangeOptions& options) {
  ChangePlan plan = planned;
  if (options.keepOld) {
    plan.removed.clear();
    plan.removedFolders.clear();
  }
  if (!options.dryRun)
    runPlan(plan);
  if (options.asJson)
    printPlanAsJson(std::cout, plan, !options.dryRun);
  else
    printPlan(std::cout, plan, !options.dryRun);
}

} // namespace tervix::tool
