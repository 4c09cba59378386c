#include "tools/tervix/commands/ChangeAction.h"

#include <algorithm>
#include <memory>

#include "foundation/platform/Platform.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/PlanRunner.h"
#include "tools/tervix/commands/ChangeOptions.h"

namespace tervix::tool {
namespace {

// A rename in case only, on a disk that takes names in any case for one.
bool movesOntoItself(const ChangePlan& plan) {
  return std::any_of(plan.made.begin(), plan.made.end(), [](const ChangePlan::Made& made) {
    return made.path != made.source && isSameName(made.path, made.source) &&
           platform::isSameEntry(made.path, made.source);
  });
}

// One run of an action.
struct Change {
  ChangePlan (*makePlan)(CTervixProject&, const ChangedNames&);
  std::string what;
  std::string file;
  std::optional<int> frontEnd;
  ChangedNames names;

  std::vector<std::string> request() const {
    return {what, names.schematic, names.name, names.newName};
  }
  ChangePlan plan() const {
    ChangePlan plan = steadyPlan([this] { return makePlan(openProject(file, frontEnd), names); });
    plan.request = request();
    return plan;
  }
};

// By way of a name in between: two changes, each of which leaves a project that opens.
void runInTwoSteps(const Change& change) {
  Change step = change;
  step.names.newName += '_';
  const ChangePlan first = step.plan();
  runPlan(first);
  step.file = first.projectFile;
  step.names.name = step.names.newName;
  step.names.newName = change.names.newName;
  runPlan(step.plan());
}

} // namespace

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
    const Change change{makePlan, what, options->file, options->frontEnd, options->names};
    if (settleBefore(change.request(), *options))
      return;
    const ChangePlan plan = change.plan();
    if (movesOntoItself(plan) && !options->keepOld)
      finish(plan, *options, [&change] { runInTwoSteps(change); });
    else
      finish(plan, *options);
  });
}

} // namespace tervix::tool
