#include "tools/tervix/commands/ArchiveCommand.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>

#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Archive.h"
#include "tools/tervix/changes/Interruption.h"
#include "tools/tervix/changes/PlanPrinter.h"
#include "tools/tervix/changes/PlanRunner.h"
#include "tools/tervix/commands/ChangeOptions.h"
#include "tools/tervix/commands/ProgressLine.h"

namespace tervix::tool {
namespace {

struct ArchiveOptions : ChangeOptions {
  std::string folder;
};

std::uintmax_t sizeOf(const ChangePlan::Made& made) {
  if (!made.isCopy)
    return made.content.size();
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(made.source, error);
  return error ? 0 : size;
}

std::uintmax_t sizeOf(const ChangePlan& plan) {
  std::uintmax_t size = 0;
  for (const ChangePlan::Made& made : plan.made)
    size += sizeOf(made);
  return size;
}

void run(ChangePlan& plan, bool showsProgress) {
  ProgressLine line(showsProgress, plan.made.size(), sizeOf(plan));
  plan.progress = [&line](const ChangePlan::Made& made) { line.next(sizeOf(made)); };
  runPlan(plan);
  plan.progress = nullptr;
}

void printSummary(const ChangePlan& plan) {
  std::cout << printable(plan.title) << "\n  opens from  " << printable(plan.projectFile)
            << "\n  copied  " << plan.made.size() << " files, " << sizeText(sizeOf(plan))
            << ", each compared with its original\n";
  for (const ChangePlan::Made& made : plan.made)
    if (!made.isCopy)
      std::cout << "  new paths in  " << printable(made.path) << "\n";
  printRemarks(std::cout, plan);
}

void archive(const ArchiveOptions& options) {
  tellOfInterruption(projectFileFor(options.file, options.frontEnd));
  ChangePlan plan = steadyPlan(
      [&] { return planArchive(openProject(options.file, options.frontEnd), options.folder); });
  if (!options.dryRun)
    run(plan, !options.asJson);
  if (options.asJson)
    printPlanAsJson(std::cout, plan, !options.dryRun);
  else if (options.dryRun)
    printPlan(std::cout, plan, false);
  else
    printSummary(plan);
}

} // namespace

void addArchiveCommand(CLI::App& app) {
  auto options = std::make_shared<ArchiveOptions>();
  CLI::App* command =
      app.add_subcommand("archive", "Copy a project, with every file it refers to, to a folder");
  addChangeOptions(*command, *options);
  command->add_option("FOLDER", options->folder, "A folder that is empty or still to be made")
      ->required()
      ->type_name("");
  command->footer("What could not be copied is told. Exit status: 0 archived, also when files are "
                  "missing that the\nproject lacks too; 1 nothing archived; 2 wrong usage.");
  command->callback([options] { archive(*options); });
}

} // namespace tervix::tool
