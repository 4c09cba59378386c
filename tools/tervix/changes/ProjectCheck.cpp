#include "tools/tervix/changes/ProjectCheck.h"

#include "tools/tervix/Failure.h"
#include "tools/tervix/OpenedProject.h"

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

void requireTree(const std::string& projectFile, FRONTEND_ID frontEnd,
                 const ExpectedTree& expected) {
  const ExpectedTree found = treeOf(viewOf(openProject(projectFile, static_cast<int>(frontEnd))));
  for (const auto& [schematic, profile] : expected)
    if (found.count({schematic, profile}) == 0)
      throw Failure("the changed project would lack " +
                    (profile.empty()
                         ? "schematic \"" + schematic + "\""
                         : "profile \"" + profile + "\" of schematic \"" + schematic + "\""));
  // Front end 1 finds its profiles on disk, those that are still to be removed among them.
  if (frontEnd == FRONTEND_ID_DESIGN_FILE && found.size() != expected.size())
    throw Failure("the changed project would hold more than it should");
}

} // namespace tervix::tool
