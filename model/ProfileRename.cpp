
#include "CTervixProfile.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"

unsigned long CTervixProfile::rename(std::string& newName) {
  std::string name = newName;
  if (name.empty())
    return 1;
  setName(name);
  const CTervixNode* schematic = tervix::parentOf(*this);
  if (schematic == nullptr)
    return 1;
  const bool hasOwnFolder = tervix::isSimulation(*this);
  const std::string parentFolder = tervix::folderPathOf(*schematic);
  std::string folder = hasOwnFolder ? parentFolder + "/" + name : parentFolder;
  setFolderPath(folder);
  displayName_ = tervix::nameOf(*schematic) + "-" + name;
  // Set for every project type, although only a simulation project saves the list.
  std::string includeList = tervix::includeListIn(folder, name);
  setVariantFilePath(includeList);
  setMarkerKey();
  std::string oldPath = tervix::pathOf(*this);
  const std::string stem =
      hasOwnFolder ? name : std::string(tervix::withoutLast(markerKey_, tervix::kEndingLength));
  std::string newPath = parentFolder + "/" + stem + tervix::kSimEnding;
  setPath(newPath);
  return syncUpProfileFiles(oldPath, newPath);
}
