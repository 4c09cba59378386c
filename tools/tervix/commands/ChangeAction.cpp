#include "tools/tervix/commands/ChangeAction.h"

#include <memory>

#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/commands/ChangeOptions.h"

namespace tervix::tool {

void addChangeAction(CLI::App& command, const ChangeAction& action) {
  struct Options : ChangeOptions {
    ChangedNames names;
  };
  auto options = std::make_shared<Options>();
  CLI::App* sub = command.add_subcommand(action.name, action.help);
  addChangeOptions(*sub, *options);
  ChangedNames& names = options->names;
  if (action.nameHelp != nullptr)
    sub->add_option("NAME", names.name, action.nameHelp)->required()->type_name("");
  if (action.newNameHelp != nullptr)
    sub->add_option("NEW", names.newName, action.newNameHelp)->required()->type_name("");
  if (action.takesSchematic)
    sub->add_option("--schematic", names.schematic, "The schematic that holds it")
        ->option_text("S")
        ->check([](const std::string& name) { return name.empty() ? "it is empty" : ""; });
  if (action.removesFiles)
    addKeepOldOption(*sub, *options);
  const std::string what = command.get_name() + " " + action.name;
  sub->callback([options, what, makePlan = action.plan] {
    const ChangedNames& given = options->names;
    const std::vector<std::string> request = {what, given.schematic, given.name, given.newName};
    if (settleBefore(request, *options))
      return;
    ChangePlan plan =
        steadyPlan([&] { return makePlan(openProject(options->file, options->frontEnd), given); });
    plan.request = request;
    finish(plan, *options);
  });
}

} // namespace tervix::tool
