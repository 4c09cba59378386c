#include <ctime>

#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "project/ProjectReaders.h"

namespace {

// A project without a design still has resources worth reading.
bool isTolerated(unsigned long status) {
  return status == 0 || status == tervix::kNoValidDesign;
}

} // namespace

unsigned long CTervixProject::initialize() {
  const std::time_t start = std::time(nullptr);
  const unsigned long status = readTree();
  initializationTime_ = static_cast<long>(std::time(nullptr) - start);
  return status;
}

// Each step's status takes the place of the one before.
unsigned long CTervixProject::readTree() {
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  const bool isProjectFile = tervix::contains(tervix::toLowerCase(initializationPath_), ".tvp");
  if (openedFromRunFile_ && !isProjectFile)
    return 0;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  if (!isProjectFile)
    return 0;
  std::vector<std::string> schematicFolders;
  unsigned long status = readDesign(schematicFolders);
  if (status == 0)
    status = readProfiles(schematicFolders);
  return isTolerated(status) ? readResources() : status;
}

unsigned long CTervixProject::readDesign(std::vector<std::string>& schematicFolders) {
  tervix::DesignPlace design;
  const FRONTEND_ID frontEnd = tervix::frontEndOf(*this);
  if (const unsigned long status = tervix::readDesignFromProject(
          design, tervix::pathOf(*this), tervix::folderPathOf(*this), frontEnd);
      status != 0)
    return status;
  return initializeDesignConfiguration(schematicFolders, design.path, design.folder, design.name,
                                       frontEnd, tervix::projectTypeOf(*this));
}

unsigned long CTervixProject::initializeDesignConfiguration(
    std::vector<std::string>& schematicFolders, std::string& designPath,
    std::string& designFolderPath, std::string& designName, FRONTEND_ID frontEndId,
    PROJECT_TYPE projectType) {
  setDesignPath(designPath);
  setDesignFolderPath(designFolderPath);
  setDesignName(designName);
  std::vector<std::string> names;
  std::string rootName;
  if (const unsigned long status =
          tervix::readDesignSchematics(names, rootName, designPath_, designName_, frontEndId);
      status != 0)
    return status;
  bool collecting = true;
  for (std::string& name : names) {
    CTervixNode* node = nullptr;
    addSchematic(node, name);
    if (node == nullptr)
      continue;
    const std::string folder = tervix::folderPathOf(*node);
    if (collecting && !folder.empty()) {
      schematicFolders.push_back(folder);
      // The schematics of such a project share one folder.
      collecting = projectType != PROJECT_TYPE_OTHER;
    }
    if (tervix::equalsIgnoringCase(tervix::nameOf(*node), rootName))
      static_cast<CTervixSchematic*>(node)->setRoot(true);
  }
  if (!rootName.empty())
    setRootSchematic(rootName);
  return 0;
}

unsigned long CTervixProject::readProfiles(const std::vector<std::string>& schematicFolders) {
  std::string activeName;
  const auto add = [&](const tervix::SimFile& file) {
    CTervixNode* node = nullptr;
    bool added = false;
    std::string path = file.path();
    addProfileOf(node, added, path, file);
    if (node == nullptr || !added || activeName.empty())
      return;
    auto& profile = static_cast<CTervixProfile&>(*node);
    if (tervix::equalsIgnoringCase(tervix::displayNameOf(profile), activeName))
      profile.setActive(true);
  };
  if (const unsigned long status = tervix::readProfileFiles(
          add, activeName, tervix::pathOf(*this), tervix::folderPathOf(*this), schematicFolders,
          tervix::frontEndOf(*this), tervix::projectTypeOf(*this));
      status != 0)
    return status;
  setActiveProfile(activeName);
  return 0;
}

unsigned long CTervixProject::readResources() {
  const std::string projectFile = tervix::pathOf(*this);
  std::string outputFile;
  if (const unsigned long status =
          tervix::readOutputFileFromProject(outputFile, projectFile, tervix::frontEndOf(*this));
      status != 0)
    return status;
  if (!outputFile.empty())
    setTervixOutputFile(outputFile);
  tervix::DesignResources resources;
  if (const unsigned long status = tervix::readProjectResources(resources, projectFile);
      status != 0)
    return status;
  for (std::string& file : resources.libraries)
    addDesignLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  for (std::string& file : resources.stimuli)
    addDesignLevelFile(file, VARIANTFILE_TYPE_STIMULUS);
  for (std::string& file : resources.includes)
    addDesignLevelFile(file, VARIANTFILE_TYPE_INCLUDE);
  return 0;
}
