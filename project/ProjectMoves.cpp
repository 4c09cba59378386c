#include "CTervixProject.h"
#include "TervixFiles.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

// Carrying the profiles' files to another place, profile by profile, until one fails. The tree
// stays as it is.

namespace {

// Calls carry(schematic, profile) for each profile and gives the first failing status.
template <class Carry> unsigned long carryAll(const CTervixProject& project, Carry carry) {
  unsigned long status = 0;
  TreeWalk::anyProfile(project, [&](CTervixSchematic& schematic, CTervixProfile& profile) {
    status = carry(tervix::nameOf(schematic), profile);
    return status != 0;
  });
  return status;
}

unsigned long archiveProfile(CTervixProfile& profile, std::string target) {
  if (const unsigned long status = createPath(target); status != 0)
    return status;
  std::string oldPath = tervix::folderPathOf(profile) + tervix::kSimEnding;
  std::string newPath = target + tervix::kSimEnding;
  return profile.syncUpProfileFiles(oldPath, newPath);
}

// The folder of the files of a simulation project, named after its project file.
std::string filesFolderOf(const std::string& projectFile) {
  return tervix::filesFolder(std::string(tervix::withoutLast(projectFile, tervix::kEndingLength)));
}

} // namespace

unsigned long CTervixProject::archiveProject(std::string& archiveDir) {
  if (archiveDir.empty())
    return 1;
  if (!tervix::isSimulation(*this))
    return 0;
  archiveDir = tervix::toForwardSlashes(archiveDir);
  if (archiveDir.back() == '/')
    archiveDir.pop_back();
  // An archive inside what it is to hold would have to hold itself.
  const unsigned long refused = carryAll(*this, [&](const std::string&, CTervixProfile& profile) {
    const std::string folder = tervix::folderPathOf(profile);
    return tervix::platform::liesIn(archiveDir, folder)
               ? tervix::raiseError(tervix::kCannotCopyDirectory, folder, archiveDir)
               : 0;
  });
  if (refused != 0)
    return refused;
  const std::string files = archiveDir + "/" + tervix::filesFolder(tervix::nameOf(*this));
  return carryAll(*this, [&](const std::string& schematic, CTervixProfile& profile) {
    return archiveProfile(profile, files + "/" + schematic + "/" + tervix::nameOf(profile));
  });
}

unsigned long CTervixProject::rename(std::string& oldProjectFilePath,
                                     std::string& newProjectFilePath) {
  std::string oldFolder = filesFolderOf(oldProjectFilePath);
  std::string newFolder = filesFolderOf(newProjectFilePath);
  const bool isSimulation = tervix::isSimulation(*this);
  if (!isSimulation) {
    if (const unsigned long status = getFilePathFromFileNamePath(oldProjectFilePath, oldFolder);
        status != 0)
      return status;
    if (const unsigned long status = getFilePathFromFileNamePath(newProjectFilePath, newFolder);
        status != 0)
      return status;
  }
  return carryAll(*this, [&](const std::string& schematic, CTervixProfile& profile) {
    const std::string name = tervix::nameOf(profile);
    const std::string file =
        "/" +
        (isSimulation ? schematic + "/" + name : tervix::longNameOf(designName_, schematic, name)) +
        tervix::kSimEnding;
    std::string oldPath = oldFolder + file;
    std::string newPath = newFolder + file;
    return profile.syncUpProfileFiles(oldPath, newPath);
  });
}
