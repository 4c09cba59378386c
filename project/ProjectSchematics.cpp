#include <new>

#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

unsigned long CTervixProject::getTopSchematic(CTervixNode*& schematic) {
  return schematicList_.getTopNode(schematic);
}
unsigned long CTervixProject::getNextSchematic(CTervixNode*& schematic) {
  return schematicList_.getNextNode(schematic);
}

unsigned long CTervixProject::findSchematic(CTervixNode*& schematic, std::string& name) {
  if (schematicList_.findNode(schematic, name) == 0)
    return 0;
  const tervix::ChangedName record = tervix::changedNameOf(*this);
  // Deliberate: the new name counts only as it was recorded, case included.
  if (!record.isWholeFor(RENAME_TYPE_SCHEMATIC) || record.changed != name)
    return 1;
  std::string former = record.former;
  return schematicList_.findNode(schematic, former);
}

unsigned long CTervixProject::addSchematic(CTervixNode*& schematic, std::string& name) {
  if (findSchematic(schematic, name) == 0 && schematic != nullptr)
    return 0;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  if (frontEnd != FRONTEND_ID_PROJECT_FILE && frontEnd != FRONTEND_ID_DESIGN_FILE)
    return 1;
  const PROJECT_TYPE type = tervix::projectTypeOf(*this);
  std::string folder = tervix::folderPathOf(*this);
  if (frontEnd == FRONTEND_ID_DESIGN_FILE)
    folder =
        type == PROJECT_TYPE_SIMULATION ? tervix::simulationFolder(*this, name) : designFolderPath_;
  // A schematic without a name could not be listed, and one whose name ends at a zero byte might
  // be listed already; nothing would ever own it.
  auto* added = !tervix::isNodeName(name)
                    ? nullptr
                    : new (std::nothrow)
                          CTervixSchematic(folder.c_str(), name.c_str(), frontEnd, type, this);
  if (added == nullptr)
    return tervix::raiseError(tervix::kCannotAddSchematic, name);
  schematicList_.addNode(added);
  schematic = added;
  return 0;
}

unsigned long CTervixProject::deleteSchematic(std::string& name) {
  return schematicList_.deleteNode(name);
}
unsigned long CTervixProject::deleteAllSchematics() {
  return schematicList_.clear();
}

unsigned long CTervixProject::numberOfSchematics(int& count) const {
  schematicList_.numberOfNodes(count);
  return 0;
}

unsigned long CTervixProject::setRootSchematic(std::string& name) {
  if (name.empty())
    return 0;
  for (CTervixSchematic& schematic : TreeWalk::schematicsOf(*this)) {
    const bool isRoot = tervix::equalsIgnoringCase(tervix::nameOf(schematic), name);
    schematic.setRoot(isRoot);
    if (isRoot)
      rootSchematic_ = name;
  }
  return 0;
}

unsigned long CTervixProject::getRootSchematic(std::string& name) const {
  name = rootSchematic_;
  return name.empty() ? 1 : 0;
}

unsigned long CTervixProject::getRootSchematic(CTervixNode*& schematic) {
  schematic = nullptr;
  std::string name;
  if (const unsigned long status = getRootSchematic(name); status != 0)
    return status;
  return findSchematic(schematic, name);
}
