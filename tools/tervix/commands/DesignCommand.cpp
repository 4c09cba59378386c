#include "tools/tervix/commands/DesignCommand.h"

#include "tools/tervix/changes/ProjectChanges.h"
#include "tools/tervix/commands/ChangeAction.h"

namespace tervix::tool {

void addDesignCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("design", "Rename the design");
  command->require_subcommand(1);
  addChangeAction(*command, {"rename", "Rename the design and all files that bear its name",
                             nullptr, "Its new name", false, true,
                             [](CTervixProject& project, const ChangedNames& names) {
                               return planDesignRename(project, names.newName);
                             }});
}

} // namespace tervix::tool
