#include "tools/tervix/commands/ChangeOptions.h"

#include <iostream>

#include "tools/tervix/changes/PlanPrinter.h"
#include "tools/tervix/changes/PlanRunner.h"

namespace tervix::tool {

void addChangeOptions(CLI::App& command, ChangeOptions& options) {
  command.add_option("FILE", options.file, "The project file (.tvp), or a .sim or .aap file of it")
      ->required()
      ->type_name("");
  command.add_option("--front-end", options.frontEnd, "As for show")
      ->check(CLI::Range(0, 2))
      ->option_text("N");
  command.add_flag("--dry-run", options.dryRun, "Print what would be done, and touch nothing");
  command.add_flag("--json", options.asJson, "Print JSON");
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
