#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

namespace {

// Cuts the backup ending of a file's name; a folder may be named as it likes.
void cutBackupEnding(std::string& path) {
  const std::size_t nameBegin = path.size() - tervix::fileNameOf(path).size();
  const std::size_t ending = path.find(".bak", nameBegin);
  if (ending != std::string::npos)
    path.erase(ending);
}

} // namespace

unsigned long CTervixProject::getProfileDir(std::string& profileDir, std::string& profileFilePath) {
  CTervixNode* profile = nullptr;
  std::string schematicName;
  std::string profileName;
  unsigned long status = findProfile(profile, schematicName, profileName, profileFilePath);
  cutBackupEnding(profileFilePath);
  if (status != 0)
    status = findProfile(profile, schematicName, profileName, profileFilePath);
  profileDir.clear();
  if (status != 0 || profile == nullptr)
    return status;
  const tervix::ChangedName record = tervix::changedNameOf(*this);
  // Deliberate: a profile is recognised by its former name, a schematic by its new one.
  if (record.isWholeFor(RENAME_TYPE_PROFILE) && record.former == profileName)
    profileDir = tervix::folderPathOf(*tervix::parentOf(*profile)) + "/" + record.changed;
  else if (record.isWholeFor(RENAME_TYPE_SCHEMATIC) && record.changed == schematicName)
    profileDir = tervix::simulationFolder(*this, record.changed) + "/" + profileName;
  else
    profileDir = tervix::folderPathOf(*profile);
  return 0;
}

unsigned long CTervixProject::renameDesign(std::string& designName, std::string& designFilePath) {
  if (designName.empty())
    return 1;
  designFilePath = tervix::toForwardSlashes(designFilePath);
  const bool isOther = tervix::projectTypeOf(*this) == PROJECT_TYPE_OTHER;
  setDesignName(designName);
  std::string folder;
  if (const unsigned long status = getFilePathFromFileNamePath(designFilePath, folder); status != 0)
    return status;
  designFolderPath_ = folder;
  designPath_ = folder + "/" + designName + ".dsn";
  unsigned long status = 0;
  for (CTervixSchematic& schematic : TreeWalk::schematicsOf(*this)) {
    // Outside simulation projects a schematic is addressed by its folder.
    if (isOther) {
      schematic.setFolderPath(folder);
      schematic.setPath(folder);
    }
    for (CTervixProfile& profile : TreeWalk::profilesOf(schematic)) {
      profile.setMarkerKey();
      if (isOther)
        status = moveToMarkerKey(profile);
    }
  }
  return status;
}

// Gives a profile the ".sim" path that its marker key implies, and carries its files there.
unsigned long CTervixProject::moveToMarkerKey(CTervixProfile& profile) const {
  std::string folder = tervix::folderPathOf(*this);
  std::string oldPath = tervix::pathOf(profile);
  std::string markerKey;
  profile.getMarkerKey(markerKey);
  std::string newPath = folder + "/" +
                        std::string(tervix::withoutLast(markerKey, tervix::kEndingLength)) +
                        tervix::kSimEnding;
  profile.setFolderPath(folder);
  profile.setPath(newPath);
  return profile.syncUpProfileFiles(oldPath, newPath);
}

unsigned long CTervixProject::deleteDesign() {
  if (tervix::frontEndOf(*this) != FRONTEND_ID_DESIGN_FILE)
    return 1;
  designPath_.clear();
  designFolderPath_.clear();
  designName_.clear();
  return deleteAllSchematics();
}

unsigned long CTervixProject::addDesign(std::string& designFilePath) {
  if (tervix::frontEndOf(*this) != FRONTEND_ID_DESIGN_FILE)
    return 1;
  if (!tervix::platform::isReadableFile(designFilePath))
    return tervix::raiseError(tervix::kFileDoesNotExist, designFilePath);
  std::string path = tervix::toForwardSlashes(designFilePath);
  std::string fileName;
  std::string folder;
  std::string name;
  if (const unsigned long status = getFileNameFromFileNamePath(path, fileName); status != 0)
    return status;
  if (const unsigned long status = getFilePathFromFileNamePath(path, folder); status != 0)
    return status;
  if (const unsigned long status = removeExtensionFromFileName(fileName, name); status != 0)
    return status;
  std::vector<std::string> schematicFolders;
  return initializeDesignConfiguration(schematicFolders, path, folder, name,
                                       FRONTEND_ID_DESIGN_FILE, tervix::projectTypeOf(*this));
}
