#include "tools/tervix/commands/ReportCommand.h"

#include <memory>
#include <optional>
#include <string>

#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/check/CheckProject.h"
#include "tools/tervix/check/Paths.h"
#include "tools/tervix/commands/OpenOptions.h"
#include "tools/tervix/report/ReportData.h"
#include "tools/tervix/report/ReportFile.h"
#include "tools/tervix/report/ReportPage.h"

namespace tervix::tool {
namespace {

struct ReportOptions : OpenOptions {
  std::string page;
  bool isForced = false;
};

void report(const ReportOptions& options) {
  requireCheckable(options.file);
  requireWritable(options.page, options.isForced);
  Progress progress;
  const CheckedProject checked = checkFile(options.file, options.frontEnd, progress);
  std::optional<ProjectView> project;
  if (checked.project != nullptr)
    project = viewOf(*checked.project);
  requireNoneOf(checked, project ? &*project : nullptr, options.page);
  const Json data = reportData(checked, project ? &*project : nullptr, progress);
  const std::string name = project ? project->name : nameOf(checked.path);
  writeWholeFile(options.page, pageOf(data, printable(name) + ": project report"));
}

} // namespace

void addReportCommand(CLI::App& app) {
  auto options = std::make_shared<ReportOptions>();
  CLI::App* command =
      app.add_subcommand("report", "Write a page that shows a project, its findings and curves");
  addProjectOptions(*command, *options);
  command->add_option("-o,--output", options->page, "The page to write (.html)")
      ->required()
      ->option_text("PATH");
  command->add_flag("--force", options->isForced,
                    "Overwrite a file that is no report; never one of the project");
  command->footer("Exit status: 0 the page is written; 1 it could not be; 2 wrong usage.");
  command->callback([options] { report(*options); });
}

} // namespace tervix::tool
