#include "tools/tervix/commands/OpenOptions.h"

namespace tervix::tool {

void addProjectOptions(CLI::App& command, OpenOptions& options) {
  command
      .add_option("FILE", options.file,
                  "The project file (.tvp), or a .sim, .aap or .$ap file of the project")
      ->required()
      ->type_name("");
  command
      .add_option("--front-end", options.frontEnd,
                  "0 for .sim and .aap files; 1 or 2 for a .tvp file, chosen from its folder "
                  "unless given")
      ->check(CLI::Range(0, 2))
      ->option_text("N");
}

void addOpenOptions(CLI::App& command, OpenOptions& options) {
  addProjectOptions(command, options);
  command.add_flag("--json", options.asJson, "Print JSON");
}

} // namespace tervix::tool
