#include "tools/tervix/changes/ProjectCheck.h"

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

ExpectedTree inLowerCase(const ExpectedTree& tree) {
  ExpectedTree lower;
  for (const auto& [schematic, profile] : tree)
    lower.insert({lowered(schematic), lowered(profile)});
  return lower;
}

} // namespace

void requireTree(const std::string& projectFile, FRONTEND_ID frontEnd,
                 const ExpectedTree& expected) {
  const ExpectedTree found = treeOf(viewOf(openProject(projectFile, static_cast<int>(frontEnd))));
  // Front end 1 finds its profiles on disk, those that are still to be removed among them, and of
  // two that differ in case either one.
  const bool isExact = frontEnd == FRONTEND_ID_DESIGN_FILE;
  const ExpectedTree foundInAnyCase = isExact ? ExpectedTree() : inLowerCase(found);
  for (const auto& [schematic, profile] : expected)
    if (isExact ? found.count({schematic, profile}) == 0
                : foundInAnyCase.count({lowered(schematic), lowered(profile)}) == 0)
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
