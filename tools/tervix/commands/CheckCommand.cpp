#include "tools/tervix/commands/CheckCommand.h"

#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "foundation/platform/Console.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/PlanPrinter.h"
#include "tools/tervix/changes/PlanRunner.h"
#include "tools/tervix/check/CheckProject.h"
#include "tools/tervix/check/FindingsJson.h"
#include "tools/tervix/check/FindingsText.h"
#include "tools/tervix/check/Repairs.h"
#include "tools/tervix/commands/ChangeOptions.h"

namespace tervix::tool {
namespace {

enum CheckStatus { kNothingFound = 0, kWarningsFound = 1, kErrorsFound = 3 };

struct CheckOptions : ChangeOptions {
  bool isStrict = false;
  bool fix = false;
};

// What is told before it is done, and where the former contents are then.
void printRepairs(const RepairPlan& repairs, bool dryRun) {
  if (repairs.plan.isEmpty()) {
    std::cout << "--fix has nothing to repair\n";
    return;
  }
  printPlan(std::cout, repairs.plan, !dryRun);
  if (!dryRun)
    std::cout << "their former contents go to " << printable(repairs.savedTo) << "\n";
}

void repair(const RepairPlan& repairs, bool dryRun) {
  if (dryRun || repairs.plan.isEmpty())
    return;
  if (!std::cout.flush())
    throw Failure("the repairs could not be printed, so none was made");
  runPlan(repairs.plan);
}

CheckStatus statusOf(const std::vector<Finding>& findings, bool isStrict) {
  CheckStatus status = kNothingFound;
  for (const Finding& finding : findings) {
    if (finding.severity() == Severity::kError)
      return kErrorsFound;
    if (isStrict && finding.severity() == Severity::kWarning)
      status = kWarningsFound;
  }
  return status;
}

CheckStatus check(CheckOptions& options) {
  if (options.fix) {
    requireCheckable(options.file);
    settleBefore({"check", "--fix"}, options);
  }
  Progress progress;
  const CheckedProject checked = checkFile(options.file, options.frontEnd, progress);
  std::optional<RepairPlan> repairs;
  if (options.fix && checked.project != nullptr)
    repairs = planRepairs(*checked.project, checked.findings);
  const bool isFixed = repairs && !options.dryRun;
  if (!options.asJson) {
    printFindings(std::cout, checked.findings, Style(platform::standardOutputTakesColour()));
    if (repairs)
      printRepairs(*repairs, options.dryRun);
  }
  if (repairs)
    repair(*repairs, options.dryRun);
  if (options.asJson)
    std::cout << jsonOf(checked, repairs ? &*repairs : nullptr, isFixed) << "\n";
  if (!isFixed || repairs->plan.isEmpty())
    return statusOf(checked.findings, options.isStrict);
  // A repair may bring to light what could not be seen before, as the files of a profile do that
  // was not registered, and may mend more than it is for.
  return statusOf(checkFile(options.file, options.frontEnd, progress).findings, options.isStrict);
}

} // namespace

void addCheckCommand(CLI::App& app) {
  auto options = std::make_shared<CheckOptions>();
  CLI::App* command = app.add_subcommand("check", "Find what breaks a project, or soon will");
  addOpenOptions(*command, *options);
  command->add_flag("--strict", options->isStrict, "Let warnings give the exit status 1");
  CLI::Option* fix = command->add_flag("--fix", options->fix, "Repair what loses nothing");
  command->add_flag("--dry-run", options->dryRun, "Print what --fix would do, and touch nothing")
      ->needs(fix);
  command->footer("Exit status: 0 nothing found, or no errors; 1 warnings, with --strict, or the\n"
                  "check failed; 2 wrong usage; 3 errors found. With --fix what is left counts.");
  command->callback([options] {
    if (const CheckStatus status = check(*options); status != kNothingFound)
      throw CLI::RuntimeError(status);
  });
}

} // namespace tervix::tool
