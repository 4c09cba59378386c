#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"

namespace {

bool isKind(VARIANTFILE_TYPE type) {
  return type >= VARIANTFILE_TYPE_LIBRARY && type <= VARIANTFILE_TYPE_INCLUDE;
}

unsigned long refuseKind() {
  return tervix::raiseError(tervix::kInvalidDesignVariantType);
}

} // namespace

unsigned long CTervixProject::getTopDesignLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  file.clear();
  if (!isKind(type))
    return refuseKind();
  const auto& list = designLevelFiles_[type];
  if (!list.empty()) {
    designLevelCursors_[type] = 0;
    file = list.front();
  }
  return 0;
}

unsigned long CTervixProject::getNextDesignLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  file.clear();
  if (!isKind(type))
    return refuseKind();
  const auto& list = designLevelFiles_[type];
  unsigned int& cursor = designLevelCursors_[type];
  if (list.size() > cursor && list.size() > ++cursor)
    file = list[cursor];
  return 0;
}

unsigned long CTervixProject::findDesignLevelFile(bool& found, std::string*& entry,
                                                  std::string& file, VARIANTFILE_TYPE type) {
  found = false;
  if (!isKind(type))
    return refuseKind();
  for (std::string& listed : designLevelFiles_[type])
    if (tervix::equalsIgnoringCase(listed, file)) {
      found = true;
      entry = &listed;
      return 0;
    }
  return 0;
}

unsigned long CTervixProject::addDesignLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  bool found = false;
  std::string* entry = nullptr;
  if (const unsigned long status = findDesignLevelFile(found, entry, file, type); status != 0)
    return status;
  if (!found)
    designLevelFiles_[type].push_back(file);
  return 0;
}

unsigned long CTervixProject::deleteDesignLevelFile(std::string& file, VARIANTFILE_TYPE type) {
  bool found = false;
  std::string* entry = nullptr;
  if (const unsigned long status = findDesignLevelFile(found, entry, file, type); status != 0)
    return status;
  if (found) {
    auto& list = designLevelFiles_[type];
    list.erase(list.begin() + (entry - list.data()));
  }
  return 0;
}

unsigned long CTervixProject::deleteAllDesignLevelFiles(VARIANTFILE_TYPE type) {
  if (!isKind(type))
    return refuseKind();
  designLevelFiles_[type].clear();
  return 0;
}

unsigned long CTervixProject::deleteAllDesignLevelFiles() {
  for (auto& list : designLevelFiles_)
    list.clear();
  return 0;
}

unsigned long CTervixProject::numberOfDesignLevelFiles(int& count, VARIANTFILE_TYPE type) const {
  if (!isKind(type))
    return refuseKind();
  count = static_cast<int>(designLevelFiles_[type].size());
  return 0;
}

unsigned long CTervixProject::getDefaultDesignLibPath(std::string& path, VARIANTFILE_TYPE type) {
  path.clear();
  std::string suffix;
  if (getVariantFileType(suffix, type) != 0)
    return refuseKind();
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  std::string folder = tervix::folderPathOf(*this);
  if (frontEnd == FRONTEND_ID_DESIGN_FILE && tervix::isSimulation(*this))
    folder += "/" + tervix::filesFolder(tervix::nameOf(*this));
  else if (frontEnd != FRONTEND_ID_DESIGN_FILE && frontEnd != FRONTEND_ID_PROJECT_FILE)
    return 1;
  path = folder + "/" + tervix::fileInFolder(designName_, suffix);
  return 0;
}

unsigned long CTervixProject::getDefaultProfileLibPath(std::string& path, std::string& profileFile,
                                                       VARIANTFILE_TYPE type) {
  std::string simPath = profileFile;
  path.clear();
  if (!tervix::isSimulation(*this))
    return 1;
  std::string suffix;
  if (getVariantFileType(suffix, type) != 0)
    return tervix::raiseError(tervix::kInvalidProfileVariantType);
  CTervixNode* profile = nullptr;
  std::string schematicName;
  std::string profileName;
  if (const unsigned long status = findProfile(profile, schematicName, profileName, simPath);
      status != 0)
    return status;
  path = tervix::folderPathOf(*profile) + "/" + tervix::fileInFolder(profileName, suffix);
  return 0;
}
