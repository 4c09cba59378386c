#include "CTervixProject.h"
#include "foundation/LastError.h"
#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProjectLink.h"
#include "model/SimFile.h"
#include "model/TreeWalk.h"

unsigned long CTervixProject::findProfile(CTervixNode*& profile, std::string& schematicName,
                                          std::string& profileName) {
  profile = nullptr;
  CTervixNode* schematic = nullptr;
  if (const unsigned long status = findSchematic(schematic, schematicName); status != 0)
    return status;
  return static_cast<CTervixSchematic*>(schematic)->findProfile(profile, profileName);
}

unsigned long CTervixProject::addProfile(CTervixNode*& profile, bool& added,
                                         std::string& schematicName, std::string& profileName) {
  profile = nullptr;
  added = false;
  CTervixNode* schematic = nullptr;
  if (const unsigned long status = addSchematic(schematic, schematicName); status != 0)
    return status;
  const unsigned long status =
      addProfileTo(profile, static_cast<CTervixSchematic&>(*schematic), schematicName, profileName);
  added = profile != nullptr;
  return status;
}

// Hands out the schematic's profile of that name, made when there is none. Where profiles have
// display names, SCHEMATIC-PROFILE is a new one's, as the client spells them.
unsigned long CTervixProject::addProfileTo(CTervixNode*& profile, CTervixSchematic& schematic,
                                           const std::string& schematicName,
                                           std::string& profileName) {
  if (schematic.findProfile(profile, profileName) == 0)
    return 0;
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  std::string displayName;
  if (frontEnd == FRONTEND_ID_DESIGN_FILE)
    displayName = schematicName + "-" + profileName;
  else if (frontEnd != FRONTEND_ID_PROJECT_FILE)
    return 1;
  return schematic.addProfile(profile, profileName, displayName);
}

unsigned long CTervixProject::addProfile(CTervixNode*& profile, bool& added,
                                         std::string& profileFilePath) {
  const std::string simPath = profileFilePath;
  return addProfileOf(profile, added, profileFilePath, tervix::SimFile(simPath));
}

unsigned long CTervixProject::addProfileOf(CTervixNode*& profile, bool& added,
                                           std::string& profileFilePath,
                                           const tervix::SimFile& file) {
  added = false;
  std::string schematicName;
  std::string profileName;
  const unsigned long status =
      findProfileOf(profile, schematicName, profileName, profileFilePath, file);
  if (status == 0 && profile != nullptr) {
    added = true;
    return 0;
  }
  if (schematicName.empty() || profileName.empty())
    return status;
  const bool isChecked = tervix::frontEndOf(*this) == FRONTEND_ID_PROJECT_FILE &&
                         tervix::projectTypeOf(*this) == PROJECT_TYPE_OTHER;
  if (isChecked)
    if (const unsigned long checked = tervix::checkSimFile(file); checked != 0)
      return checked;
  return addProfile(profile, added, schematicName, profileName);
}

unsigned long CTervixProject::addProfileToRootSchematic(CTervixNode*& profile,
                                                        std::string& profileName) {
  profile = nullptr;
  CTervixNode* root = nullptr;
  if (const unsigned long status = getRootSchematic(root); status != 0)
    return status;
  return addProfileTo(profile, static_cast<CTervixSchematic&>(*root), tervix::nameOf(*root),
                      profileName);
}

unsigned long CTervixProject::addProfileToRootSchematic(std::string& profileName) {
  CTervixNode* profile = nullptr;
  return addProfileToRootSchematic(profile, profileName);
}

unsigned long CTervixProject::setActiveProfile(std::string& displayName) {
  if (displayName.empty())
    return 0;
  CTervixNode* root = nullptr;
  if (const unsigned long status = getRootSchematic(root); status != 0)
    return status;
  for (CTervixProfile& profile :
       TreeWalk::profilesOf(static_cast<const CTervixSchematic&>(*root))) {
    const bool isActive = tervix::equalsIgnoringCase(tervix::displayNameOf(profile), displayName);
    profile.setActive(isActive);
    if (isActive)
      activeProfile_ = displayName;
  }
  return 0;
}

unsigned long CTervixProject::getActiveProfile(std::string& displayName) const {
  displayName = activeProfile_;
  return displayName.empty() ? 1 : 0;
}

unsigned long CTervixProject::getActiveProfile(CTervixNode*& profile) {
  profile = nullptr;
  CTervixNode* root = nullptr;
  if (const unsigned long status = getRootSchematic(root); status != 0)
    return status;
  return static_cast<CTervixSchematic*>(root)->getActiveProfile(profile);
}
