#include "model/ProjectLink.h"

#include "model/NodeFields.h"
#include "model/ProfileNames.h"

namespace tervix {

CTervixProject* projectAbove(const CTervixNode& node) {
  return dynamic_cast<CTervixProject*>(parentOf(node));
}

const std::string& designNameOf(const CTervixProject& project) {
  return NodeAccess::designName(project);
}

ChangedName changedNameOf(const CTervixProject& project) {
  ChangedName record;
  project.getChangedName(record.former, record.changed, record.kind);
  return record;
}

std::string simulationFolder(const CTervixProject& project, const std::string& schematic) {
  return folderPathOf(project) + "/" + filesFolder(nameOf(project)) + "/" + schematic;
}

unsigned int releaseProject(CTervixNode& node) {
  auto* const project = dynamic_cast<CTervixProject*>(&node);
  if (project == nullptr)
    return 0;
  unsigned int references = 0;
  project->release();
  project->getRefCount(references);
  return references;
}

} // namespace tervix
