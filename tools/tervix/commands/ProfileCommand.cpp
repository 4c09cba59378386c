#include "tools/tervix/commands/ProfileCommand.h"

#include "tools/tervix/changes/ProfileChanges.h"
#include "tools/tervix/commands/ChangeAction.h"

namespace tervix::tool {

void addProfileCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("profile", "Add, copy, rename, delete, activate profiles");
  command->require_subcommand(1);
  addChangeAction(*command, {"add", "Make a new profile", "Its name", nullptr, true, false,
                             [](CTervixProject& project, const ChangedNames& names) {
                               return planProfileAdd(project, names.schematic, names.name);
                             }});
  addChangeAction(*command,
                  {"copy", "Copy a profile with all its files", "The profile", "The copy's name",
                   true, false, [](CTervixProject& project, const ChangedNames& names) {
                     return planProfileCopy(project, names.schematic, names.name, names.newName);
                   }});
  addChangeAction(*command,
                  {"rename", "Rename a profile and all its files", "The profile", "Its new name",
                   true, true, [](CTervixProject& project, const ChangedNames& names) {
                     return planProfileRename(project, names.schematic, names.name, names.newName);
                   }});
  addChangeAction(*command, {"delete", "Delete a profile and all its files", "The profile", nullptr,
                             true, true, [](CTervixProject& project, const ChangedNames& names) {
                               return planProfileDelete(project, names.schematic, names.name);
                             }});
  addChangeAction(*command,
                  {"activate", "Make a profile of the root schematic the active one", "The profile",
                   nullptr, true, false, [](CTervixProject& project, const ChangedNames& names) {
                     return planProfileActivate(project, names.schematic, names.name);
                   }});
}

} // namespace tervix::tool
