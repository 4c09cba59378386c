#include "tools/tervix/commands/ProfileCommand.h"

#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/changes/ProfileChanges.h"
#include "tools/tervix/commands/ChangeOptions.h"

namespace tervix::tool {
namespace {

struct ProfileOptions : ChangeOptions {
  std::string schematic;
  std::string name;
  std::string newName;
};

using PlanOne = ChangePlan (*)(CTervixProject&, const std::string&, const std::string&);
using PlanTwo = ChangePlan (*)(CTervixProject&, const std::string&, const std::string&,
                               const std::string&);

CLI::App* addAction(CLI::App& command, const char* action, const char* help,
                    const std::shared_ptr<ProfileOptions>& options) {
  CLI::App* sub = command.add_subcommand(action, help);
  addChangeOptions(*sub, *options);
  sub->add_option("NAME", options->name, "The profile")->required()->type_name("");
  sub->add_option("--schematic", options->schematic, "The schematic that holds it")
      ->option_text("S");
  return sub;
}

void addActionWithName(CLI::App& command, const char* action, const char* help, PlanOne plan,
                       bool removes) {
  auto options = std::make_shared<ProfileOptions>();
  CLI::App* sub = addAction(command, action, help, options);
  if (removes)
    addKeepOldOption(*sub, *options);
  sub->callback([options, plan] {
    CTervixProject& project = openProject(options->file, options->frontEnd);
    finish(plan(project, options->schematic, options->name), *options);
  });
}

void addActionWithNewName(CLI::App& command, const char* action, const char* help, PlanTwo plan,
                          bool removes) {
  auto options = std::make_shared<ProfileOptions>();
  CLI::App* sub = addAction(command, action, help, options);
  sub->add_option("NEW", options->newName, "Its new name")->required()->type_name("");
  if (removes)
    addKeepOldOption(*sub, *options);
  sub->callback([options, plan] {
    CTervixProject& project = openProject(options->file, options->frontEnd);
    finish(plan(project, options->schematic, options->name, options->newName), *options);
  });
}

} // namespace

void addProfileCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("profile", "Add, copy, rename, delete, activate profiles");
  command->require_subcommand(1);
  addActionWithName(*command, "add", "Make a new profile", planProfileAdd, false);
  addActionWithNewName(*command, "copy", "Copy a profile with all its files", planProfileCopy,
                       false);
  addActionWithNewName(*command, "rename", "Rename a profile and all its files", planProfileRename,
                       true);
  addActionWithName(*command, "delete", "Delete a profile and all its files", planProfileDelete,
                    true);
  addActionWithName(*command, "activate", "Make a profile of the root schematic the active one",
                    planProfileActivate, false);
}

} // namespace tervix::tool
