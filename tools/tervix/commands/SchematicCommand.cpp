#include "tools/tervix/commands/SchematicCommand.h"

#include "tools/tervix/changes/SchematicChanges.h"
#include "tools/tervix/commands/ChangeAction.h"

namespace tervix::tool {

void addSchematicCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("schematic", "Add, rename, delete schematics");
  command->require_subcommand(1);
  addChangeAction(*command, {"add", "Enter a new schematic into the design", "Its name", nullptr,
                             false, false, [](CTervixProject& project, const ChangedNames& names) {
                               return planSchematicAdd(project, names.name);
                             }});
  addChangeAction(*command, {"rename", "Rename a schematic with its profiles and all files",
                             "The schematic", "Its new name", false, true,
                             [](CTervixProject& project, const ChangedNames& names) {
                               return planSchematicRename(project, names.name, names.newName);
                             }});
  addChangeAction(*command,
                  {"delete", "Delete a schematic with its profiles and all files", "The schematic",
                   nullptr, false, true, [](CTervixProject& project, const ChangedNames& names) {
                     return planSchematicDelete(project, names.name);
                   }});
}

} // namespace tervix::tool
