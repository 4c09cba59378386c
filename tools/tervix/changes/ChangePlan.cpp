#include "tools/tervix/changes/ChangePlan.h"

#include <algorithm>
#include <tuple>

#include "tools/tervix/Failure.h"

namespace tervix::tool {
namespace {

auto fieldsOf(const ChangePlan::Made& made) {
  return std::tie(made.path, made.source, made.content, made.isCopy);
}
auto fieldsOf(const ChangePlan::Rewritten& file) {
  return std::tie(file.path, file.content);
}
auto fieldsOf(const ChangePlan::Remark& remark) {
  return std::tie(remark.kind, remark.path);
}
auto fieldsOf(const ChangePlan& plan) {
  return std::tie(plan.madeFolders, plan.removed, plan.removedFolders, plan.projectFile,
                  plan.formerProjectFile, plan.deleted);
}

template <class Entry> bool areSame(const std::vector<Entry>& a, const std::vector<Entry>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& x, const auto& y) { return fieldsOf(x) == fieldsOf(y); });
}

bool areSame(const ChangePlan& a, const ChangePlan& b) {
  return fieldsOf(a) == fieldsOf(b) && areSame(a.made, b.made) &&
         areSame(a.rewritten, b.rewritten) && areSame(a.remarks, b.remarks) &&
         a.libraryCalls.size() == b.libraryCalls.size();
}

} // namespace

ChangePlan steadyPlan(const std::function<ChangePlan()>& makePlan) {
  const ChangePlan once = makePlan();
  ChangePlan plan = makePlan();
  if (!areSame(once, plan))
    throw Failure("the project could not be read twice with the same result; nothing was changed");
  return plan;
}

} // namespace tervix::tool
