#include "tools/tervix/ShowCommand.h"

#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "foundation/platform/Console.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/ProjectJson.h"
#include "tools/tervix/ProjectTree.h"
#include "tools/tervix/ProjectView.h"

namespace tervix::tool {
namespace {

struct ShowOptions {
  std::string file;
  std::optional<int> frontEnd;
  bool asJson = false;
};

void show(const ShowOptions& options) {
  const ProjectView view = viewOf(openProject(options.file, options.frontEnd));
  if (options.asJson)
    std::cout << jsonOf(view) << "\n";
  else
    printTree(std::cout, view, Style(platform::standardOutputTakesColour()));
}

} // namespace

void addShowCommand(CLI::App& app) {
  auto options = std::make_shared<ShowOptions>();
  CLI::App* command = app.add_subcommand("show", "Open a project and print its tree");
  command->add_option("FILE", options->file, "A .tvp, .sim, .aap or .$ap file")
      ->required()
      ->type_name("");
  command
      ->add_option("--front-end", options->frontEnd,
                   "0 for .sim and .aap files; 1 or 2 for a .tvp file, chosen from its folder "
                   "unless given")
      ->check(CLI::Range(0, 2))
      ->option_text("N");
  command->add_flag("--json", options->asJson, "Print JSON instead of a tree");
  command->callback([options] { show(*options); });
}

} // namespace tervix::tool
