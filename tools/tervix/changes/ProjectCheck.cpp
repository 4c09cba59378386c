#include "tools/tervix/changes/ProjectCheck.h"

#include <algorithm>

#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"
#include "tools/tervix/changes/Names.h"

namespace tervix::tool {

ExpectedTree treeOf(const ProjectView& project) {
  ExpectedTree tree;
  for (const SchematicView& schematic : project.schematics) {
    tree.insert({schematic.name, ""});
    for (const ProfileView& profile : schematic.profiles)
      tree.insert({schematic.name, profile.name});
  }
  return tree;
}

namespace {

std::string described(const std::string& schematic, const std::string& profile) {
  std::string text = "schematic \"" + schematic + "\"";
  if (!profile.empty())
    text.insert(0, "profile \"" + profile + "\" of ");
  return text;
}

} // namespace

void requireTree(const std::string& projectFile, FRONTEND_ID frontEnd,
                 const ExpectedTree& expected) {
  const ExpectedTree found = treeOf(viewOf(openProject(projectFile, static_cast<int>(frontEnd))));
  // Front end 1 finds its profiles on disk, those that are still to be removed among them, and of
  // two that differ in case either one.
  const bool isExact = frontEnd == FRONTEND_ID_DESIGN_FILE;
  const auto isFound = [&](const std::string& schematic, const std::string& profile) {
    return std::any_of(found.begin(), found.end(), [&](const auto& entry) {
      return isExact ? entry.first == schematic && entry.second == profile
                     : isSameName(entry.first, schematic) && isSameName(entry.second, profile);
    });
  };
  for (const auto& [schematic, profile] : expected)
    if (!isFound(schematic, profile))
      throw Failure("the changed project would lack " + described(schematic, profile));
  if (isExact && found.size() != expected.size())
    throw Failure("the changed project would hold more than it should");
}

void checkTree(ChangePlan& plan, const ProjectLayout& layout, const ExpectedTree& expected) {
  plan.designFolder = layout.designFolder;
  plan.check = [file = plan.projectFile, frontEnd = layout.frontEnd, expected] {
    requireTree(file, frontEnd, expected);
  };
}

} // namespace tervix::tool
