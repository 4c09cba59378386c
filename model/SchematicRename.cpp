#include "CTervixProfile.h"
#include "CTervixSchematic.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

unsigned long CTervixSchematic::getNewPath(std::string& path) {
  const CTervixProject* project = tervix::projectAbove(*this);
  if (project == nullptr)
    return 1;
  const tervix::ChangedName record = tervix::changedNameOf(*project);
  const bool isSchematic = record.isWholeFor(RENAME_TYPE_SCHEMATIC);
  if (!isSchematic && !record.isWholeFor(RENAME_TYPE_DESIGN))
    return 0;
  // Outside simulation projects all schematics share the folder of the design.
  if (!tervix::isSimulation(*this))
    project->getDesignFolderPath(path);
  else if (isSchematic)
    path = tervix::simulationFolder(*project, record.changed);
  return 0;
}

unsigned long CTervixSchematic::rename(std::string& newName) {
  std::string name = newName;
  if (name.empty())
    return 1;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getProjectType(type); status != 0)
    return status;
  std::string newPath;
  if (const unsigned long status = getNewPath(newPath); status != 0)
    return status;
  setName(name);
  setPath(newPath);
  setFolderPath(newPath);
  const std::string folder = tervix::folderPathOf(*this);
  for (CTervixProfile& profile : TreeWalk::profilesOf(*this))
    if (const unsigned long status = renameProfile(profile, folder); status != 0)
      return status;
  return 0;
}

unsigned long CTervixSchematic::renameProfile(CTervixProfile& profile, const std::string& folder) {
  const std::string name = tervix::nameOf(profile);
  std::string oldPath = tervix::pathOf(profile);
  std::string profileFolder = tervix::isSimulation(*this) ? folder + "/" + name : folder;
  std::string displayName = tervix::nameOf(*this) + "-" + name;
  std::string includeList = tervix::includeListIn(profileFolder, name);
  profile.setFolderPath(profileFolder);
  profile.setDisplayName(displayName);
  profile.setVariantFilePath(includeList);
  profile.setMarkerKey();
  std::string stem = name;
  if (!tervix::isSimulation(*this)) {
    profile.getMarkerKey(stem);
    stem = tervix::withoutLast(stem, tervix::kEndingLength);
  }
  std::string newPath = profileFolder + "/" + stem + tervix::kSimEnding;
  profile.setPath(newPath);
  return profile.syncUpProfileFiles(oldPath, newPath);
}
