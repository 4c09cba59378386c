#include "tools/tervix/commands/ProjectCommand.h"

#include "tools/tervix/changes/ProjectChanges.h"
#include "tools/tervix/commands/ChangeAction.h"

namespace tervix::tool {

void addProjectCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("project", "Rename the project");
  command->require_subcommand(1);
  addChangeAction(*command, {"rename", "Rename the project and all files that bear its name",
                             nullptr, "Its new name", false, true,
                             [](CTervixProject& project, const ChangedNames& names) {
                               return planProjectRename(project, names.newName);
                             }});
}

} // namespace tervix::tool
