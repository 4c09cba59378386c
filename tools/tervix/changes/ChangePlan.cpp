#include "tools/tervix/changes/ChangePlan.h"

#include <algorithm>
#include <tuple>

namespace tervix::tool {
namespace {

auto fieldsOf(const ChangePlan::Made& made) {
  return std::tie(made.path, made.source, made.content, made.isCopy);
}
auto fieldsOf(const ChangePlan::Rewritten& file) {
  return std::tie(file.path, file.content);
}
auto fieldsOf(const ChangePlan& plan) {
  return std::tie(plan.madeFolders, plan.removed, plan.removedFolders, plan.projectFile,
                  plan.formerProjectFile, plan.deleted);
}

template <class Files> bool areSame(const Files& a, const Files& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& x, const auto& y) { return fieldsOf(x) == fieldsOf(y); });
}

} // namespace

bool isSame(const ChangePlan& a, const ChangePlan& b) {
  return fieldsOf(a) == fieldsOf(b) && areSame(a.made, b.made) &&
         areSame(a.rewritten, b.rewritten) && a.libraryCalls.size() == b.libraryCalls.size();
}

} // namespace tervix::tool
