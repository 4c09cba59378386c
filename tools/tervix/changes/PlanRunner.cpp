#include "tools/tervix/changes/PlanRunner.h"

#include <filesystem>
#include <set>

#include "foundation/platform/Platform.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Interruption.h"
#include "tools/tervix/changes/Journal.h"
#include "tools/tervix/changes/PlacesTouched.h"
#include "tools/tervix/changes/PlanSteps.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

void refuseTaken(const ChangePlan& plan) {
  for (const ChangePlan::Made& made : plan.made)
    if (isThere(made.path))
      throw Failure(inQuotes(made.path) + " is there already; nothing was changed");
  for (const std::string& projectFile : {plan.projectFile, plan.formerProjectFile})
    if (!projectFile.empty() && isThere(journalOf(projectFile)))
      throw Failure(inQuotes(journalOf(projectFile)) +
                    " tells of another change; nothing was changed");
}

// What is old goes last, when it is too late to refuse.
void refuseLastingFolders(const ChangePlan& plan) {
  std::set<std::string> folders;
  for (const auto& paths : {plan.removed, plan.removedFolders})
    for (const std::string& path : paths)
      folders.insert(fs::path(path).parent_path().generic_string());
  for (const std::string& folder : folders)
    if (!platform::isWritableFolder(folder))
      throw Failure("nothing may be removed from " + inQuotes(folder) + "; nothing was changed");
}

// A journal that names what lies elsewhere would not be trusted afterwards.
void refuseElsewhere(const ChangePlan& plan, const ChangeRecord& record) {
  if (plan.isElsewhere)
    return;
  if (const auto outside = PlacesTouched(foldersOf(plan)).firstOutside(record))
    throw Failure(inQuotes(*outside) +
                  " does not lie in the folder of the project, or a link on the way leads out of "
                  "it; nothing was changed");
}

class Runner {
public:
  explicit Runner(const ChangePlan& plan) : plan_(plan), record_(recordOf(plan)) {
    refuseElsewhere(plan_, record_);
  }

  void run() {
    start();
    try {
      goForward();
    } catch (const std::exception& failure) {
      record_.isComplete = false;
      goBack(failure.what());
    }
    if (const std::vector<std::string> left = removeOld(record_); !left.empty())
      throw Failure("The change is made, but not everything old could be removed" + later(left));
  }

private:
  void start() const {
    try {
      note(record_.formerProjectFile());
    } catch (const Failure& failure) {
      throw Failure(failure.what() + std::string("; nothing was changed"));
    }
  }

  void goForward() {
    makeFolders(record_);
    if (!plan_.formerProjectFile.empty())
      note(plan_.projectFile);
    makeFiles(record_, plan_);
    rewriteFiles(record_);
    if (plan_.check)
      plan_.check();
    flushFiles(record_);
    record_.isComplete = true;
    note(plan_.projectFile);
  }

  [[noreturn]] void goBack(const std::string& reason) const {
    const std::vector<std::string> left = takeBack(record_);
    if (left.empty())
      throw Failure(reason + "\nThe project is as it was.");
    throw Failure(reason + "\nNot everything could be taken back" + later(left));
  }

  void note(const std::string& projectFile) const {
    if (!plan_.isElsewhere)
      writeJournal(journalOf(projectFile), record_);
  }

  std::string later(const std::vector<std::string>& left) const {
    return (plan_.isElsewhere ? ". Left are:"
                              : "; the next command that changes the project tries again. "
                                "Left are:") +
           listed(left);
  }

  const ChangePlan& plan_;
  ChangeRecord record_;
};

} // namespace

void runPlan(const ChangePlan& plan) {
  refuseTaken(plan);
  refuseLastingFolders(plan);
  Runner(plan).run();
}

} // namespace tervix::tool
