#include "tools/tervix/ShowCommand.h"

#include <iostream>
#include <memory>

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "foundation/platform/Console.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/ProjectJson.h"
#include "tools/tervix/ProjectTree.h"
#include "tools/tervix/ProjectView.h"
#include "tools/tervix/changes/Interruption.h"
#include "tools/tervix/commands/OpenOptions.h"

namespace tervix::tool {
namespace {

void show(const OpenOptions& options) {
  CTervixProject& project = openProject(options.file, options.frontEnd);
  tellOfInterruption(projectFileOf(project));
  const ProjectView view = viewOf(project);
  if (options.asJson)
    std::cout << jsonOf(view) << "\n";
  else
    printTree(std::cout, view, Style(platform::standardOutputTakesColour()));
}

} // namespace

void addShowCommand(CLI::App& app) {
  auto options = std::make_shared<OpenOptions>();
  CLI::App* command = app.add_subcommand("show", "Open a project and print its tree");
  addOpenOptions(*command, *options);
  command->callback([options] { show(*options); });
}

} // namespace tervix::tool
