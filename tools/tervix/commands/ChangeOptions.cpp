#include "tools/tervix/commands/ChangeOptions.h"

#include <filesystem>
#include <iostream>

#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Interruption.h"
#include "tools/tervix/changes/PlanPrinter.h"
#include "tools/tervix/changes/PlanRunner.h"

namespace tervix::tool {

namespace {

void print(const ChangePlan& plan, const ChangeOptions& options) {
  if (options.asJson)
    printPlanAsJson(std::cout, plan, !options.dryRun);
  else
    printPlan(std::cout, plan, !options.dryRun);
}

// Otherwise of two changes at a time one would write over what the other has written. Without locks
// in the file system that remains.
void lockProject(platform::FolderLock& lock, const std::string& projectFile) {
  const std::string folder = std::filesystem::path(projectFile).parent_path().generic_string();
  if (lock.tryLock(folder) != platform::FolderLock::Result::kTaken)
    return;
  std::cerr << "tervix: waiting for another change in " << inQuotes(folder) << "\n";
  lock.lock(folder);
}

} // namespace

void addChangeOptions(CLI::App& command, ChangeOptions& options) {
  addOpenOptions(command, options);
  command.add_flag("--dry-run", options.dryRun, "Print what would be done, and touch nothing");
}

void addKeepOldOption(CLI::App& command, ChangeOptions& options) {
  command.add_flag("--keep-old", options.keepOld, "Leave the old files where they are");
}

bool settleBefore(const std::vector<std::string>& request, ChangeOptions& options) {
  const std::string projectFile = projectFileFor(options.file, options.frontEnd);
  if (options.dryRun) {
    tellOfInterruption(projectFile);
    return false;
  }
  lockProject(options.lock, projectFile);
  const auto finished = settleInterruption(projectFile);
  const bool isAskedFor = finished && finished->request == request;
  if (isAskedFor)
    print(*finished, options);
  return isAskedFor;
}

void finish(const ChangePlan& planned, const ChangeOptions& options,
            const std::function<void()>& run) {
  ChangePlan plan = planned;
  if (options.keepOld) {
    plan.removed.clear();
    plan.removedFolders.clear();
    if (plan.isEmpty() && !planned.isEmpty())
      throw Failure("the profiles of front end 1 are those whose files are there: with --keep-old "
                    "nothing would change");
  }
  if (!options.dryRun)
    run ? run() : runPlan(plan);
  print(plan, options);
}

} // namespace tervix::tool
