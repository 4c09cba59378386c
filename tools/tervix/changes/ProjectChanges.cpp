#include "tools/tervix/changes/ProjectChanges.h"

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/Renaming.h"

namespace tervix::tool {
namespace {

void requireNewName(const std::string& name, const std::string& newName, const char* what) {
  requireUsableName(newName, what);
  if (name == newName)
    throw Failure("the " + std::string(what) + " is named " + inQuotes(newName) + " already");
}

} // namespace

ChangePlan planProjectRename(CTervixProject& project, const std::string& newName) {
  Renaming renaming(project);
  const std::string name = renaming.before().project;
  requireNewName(name, newName, "project");
  renaming.renameProject(newName);
  return renaming.plan("rename project " + name + " to " + newName);
}

ChangePlan planDesignRename(CTervixProject& project, const std::string& newName) {
  Renaming renaming(project);
  const std::string name = renaming.before().design;
  requireNewName(name, newName, "design");
  renaming.renameDesign(newName);
  return renaming.plan("rename design " + name + " to " + newName);
}

} // namespace tervix::tool
