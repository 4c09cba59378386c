#include "tools/tervix/changes/SchematicChanges.h"

#include <algorithm>

#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"
#include "tools/tervix/changes/FileContent.h"
#include "tools/tervix/changes/Lookup.h"
#include "tools/tervix/changes/NamedPath.h"
#include "tools/tervix/changes/Names.h"
#include "tools/tervix/changes/OpenFormats.h"
#include "tools/tervix/changes/ProjectCheck.h"
#include "tools/tervix/changes/ProjectLayout.h"
#include "tools/tervix/changes/Removal.h"
#include "tools/tervix/changes/Renaming.h"

namespace tervix::tool {
namespace {

void requireDesignFile(const ProjectLayout& layout) {
  if (!layout.hasDesignFile())
    throw Failure("a project of front end 1 has one schematic, its design; "
                  "no other can be added and this one not be deleted");
}

bool isAmong(const std::string& place, const std::vector<ProfileView>& profiles) {
  return std::any_of(profiles.begin(), profiles.end(),
                     [&](const ProfileView& profile) { return profile.sim.place == place; });
}

bool liesIn(const std::string& path, const std::string& folder) {
  return path.rfind(folder + "/", 0) == 0;
}

} // namespace

ChangePlan planSchematicAdd(CTervixProject& project, const std::string& name) {
  const ProjectView view = viewOf(project);
  const ProjectLayout layout = layoutOf(project);
  requireDesignFile(layout);
  requireUsableName(name, "schematic");
  requireFreeSchematicName(view, name, "");
  ChangePlan plan;
  plan.title = "add schematic " + name;
  plan.projectFile = layout.projectFile;
  OpenFormatFile design(view.design.place);
  design.addSchematic(name);
  plan.rewritten.push_back({view.design.place, design.text()});
  ExpectedTree expected = treeOf(view);
  expected.insert({name, ""});
  checkTree(plan, layout, expected);
  return plan;
}

ChangePlan planSchematicRename(CTervixProject& project, const std::string& name,
                               const std::string& newName) {
  Renaming renaming(project);
  const SchematicView& schematic = schematicNamed(renaming.view(), name);
  requireUsableName(newName, "schematic");
  if (schematic.name == newName)
    throw Failure("the schematic is named " + inQuotes(newName) + " already");
  requireFreeSchematicName(renaming.view(), newName, schematic.name);
  renaming.renameSchematic(schematic.name, newName);
  return renaming.plan("rename schematic " + schematic.name + " to " + newName);
}

ChangePlan planSchematicDelete(CTervixProject& project, const std::string& name) {
  const ProjectView view = viewOf(project);
  const ProjectLayout layout = layoutOf(project);
  requireDesignFile(layout);
  const SchematicView& schematic = schematicNamed(view, name);
  if (schematic.root)
    throw Failure(inQuotes(schematic.name) + " is the root schematic; a design needs one");
  ChangePlan plan;
  plan.title = "delete schematic " + schematic.name;
  plan.projectFile = layout.projectFile;
  ExpectedTree expected = treeOf(view);
  for (const ProfileView& profile : schematic.profiles) {
    removeProfileFiles(plan, layout, schematic.name, profile.name);
    plan.deleted.emplace_back(schematic.name, profile.name);
    expected.erase({schematic.name, profile.name});
  }
  expected.erase({schematic.name, ""});
  removeSchematicFiles(plan, layout, schematic.name);
  plan.deleted.emplace_back(schematic.name, "");
  keepFilesNamedBy(plan, view, expected);

  OpenFormatFile design(view.design.place);
  design.removeSchematic(schematic.name);
  plan.rewritten.push_back({view.design.place, design.text()});
  // Profiles of it that are registered but not there lie in its folder, if it has one of its own.
  OpenFormatFile file(layout.projectFile);
  file.removeProfiles([&](const std::string& text) {
    const std::string place = placeOf({text, layout.folder});
    return isAmong(place, schematic.profiles) ||
           (layout.isSimulation() && liesIn(place, schematic.folder));
  });
  if (file.text() != contentOf(layout.projectFile))
    plan.rewritten.push_back({layout.projectFile, file.text()});
  checkTree(plan, layout, expected);
  return plan;
}

} // namespace tervix::tool
