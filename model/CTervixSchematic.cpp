#include "CTervixSchematic.h"

#include <new>

#include "CTervixProfile.h"
#include "foundation/LastError.h"
#include "foundation/Text.h"
#include "model/NodeFields.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"
#include "model/TreeWalk.h"

CTervixSchematic::CTervixSchematic() {
  setType(NODE_TYPE_SCHEMATIC);
  profiles_.holder_ = this;
}

CTervixSchematic::CTervixSchematic(const char* path, const char* name, FRONTEND_ID frontEndId,
                                   PROJECT_TYPE projectType, CTervixNode* parent)
    : CTervixSchematic() {
  setFrontEndId(frontEndId);
  setProjectType(projectType);
  CTervixNode::setParent(parent);
  if (name != nullptr) {
    std::string ownName(name);
    setName(ownName);
  }
  if (path != nullptr) {
    std::string folder(path);
    setPath(folder);
    setFolderPath(folder);
  }
}

CTervixSchematic::CTervixSchematic(const CTervixSchematic& other)
    : CTervixNode(other), profiles_(other.profiles_), isRoot_(other.isRoot_) {
  profiles_.holder_ = this;
}
CTervixSchematic::~CTervixSchematic() = default;

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,misc-unconventional-assign-operator)
CTervixSchematic& CTervixSchematic::operator=(const CTervixSchematic&) {
  return *this;
}
unsigned long CTervixSchematic::clone(CTervixSchematic&) {
  return 0;
}

unsigned long CTervixSchematic::writeVariants() {
  for (CTervixProfile& profile : TreeWalk::profilesOf(*this))
    profile.writeVariants();
  return 0;
}

unsigned long CTervixSchematic::readVariants() {
  for (CTervixProfile& profile : TreeWalk::profilesOf(*this))
    profile.readVariants();
  return 0;
}

unsigned long CTervixSchematic::setParent(CTervixNode* parent) {
  return CTervixNode::setParent(parent);
}
unsigned long CTervixSchematic::getParent(CTervixNode*& parent) const {
  return CTervixNode::getParent(parent);
}

unsigned long CTervixSchematic::getTopProfile(CTervixNode*& profile) {
  return profiles_.getTopNode(profile);
}
unsigned long CTervixSchematic::getNextProfile(CTervixNode*& profile) {
  return profiles_.getNextNode(profile);
}
unsigned long CTervixSchematic::findProfile(CTervixNode*& profile, std::string& name) {
  return profiles_.findNode(profile, name);
}
unsigned long CTervixSchematic::deleteProfile(std::string& name) {
  return profiles_.deleteNode(name);
}
unsigned long CTervixSchematic::deleteAllProfiles() {
  return profiles_.deleteAllNodes();
}
unsigned long CTervixSchematic::numberOfProfiles(int& count) {
  return profiles_.numberOfNodes(count);
}

// Where the ".sim" file of a profile of that name lies; 0 with an empty path for a front end that
// has no profiles.
unsigned long CTervixSchematic::composeSimPath(std::string& path, const std::string& name) const {
  path.clear();
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  if (const unsigned long status = getProjectType(type); status != 0)
    return status;
  const std::string& folder = tervix::folderPathOf(*this);
  if (frontEnd == FRONTEND_ID_PROJECT_FILE) {
    const char* place = type == PROJECT_TYPE_SIMULATION ? "/profiles/" : "/";
    path = tervix::joined({folder, place, name, tervix::kSimEnding});
  } else if (frontEnd == FRONTEND_ID_DESIGN_FILE && type == PROJECT_TYPE_SIMULATION) {
    path = tervix::joined({folder, "/", name, tervix::kSimEnding});
  } else if (frontEnd == FRONTEND_ID_DESIGN_FILE) {
    const CTervixProject* project = tervix::projectAbove(*this);
    if (project == nullptr)
      return 1;
    path = tervix::joined({tervix::folderPathOf(*project), "/", tervix::designNameOf(*project), "-",
                           tervix::nameOf(*this), "-", name, tervix::kSimEnding});
  }
  return 0;
}

unsigned long CTervixSchematic::addProfile(CTervixNode*& profile, std::string& name,
                                           std::string& displayName) {
  if (findProfile(profile, name) == 0 && profile != nullptr)
    return 0;
  std::string simPath;
  if (const unsigned long status = composeSimPath(simPath, name); status != 0)
    return status;
  if (simPath.empty())
    return 1;
  // A profile without a name could not be listed, and one whose name ends at a zero byte might be
  // listed already; nothing would ever own it.
  auto* added =
      !tervix::isNodeName(name)
          ? nullptr
          : new (std::nothrow)
                CTervixProfile(simPath.c_str(), name.c_str(), displayName.c_str(),
                               tervix::frontEndOf(*this), tervix::projectTypeOf(*this), this);
  if (added == nullptr) {
    tervix::raiseError(tervix::kCannotAddProfile, name);
    return 1;
  }
  profiles_.addNode(added);
  profile = added;
  return 0;
}

unsigned long CTervixSchematic::getActiveProfile(CTervixNode*& profile) {
  profile = nullptr;
  if (!isRoot_)
    return tervix::raiseError(tervix::kNotRootSchematic, tervix::nameOf(*this));
  for (CTervixProfile& candidate : TreeWalk::profilesOf(*this)) {
    bool active = false;
    candidate.isActive(active);
    if (active) {
      profile = &candidate;
      return 0;
    }
  }
  return tervix::raiseError(tervix::kNoActiveProfile, tervix::nameOf(*this));
}

unsigned long CTervixSchematic::setRoot(bool root) {
  isRoot_ = root;
  return 0;
}
unsigned long CTervixSchematic::isRoot(bool& root) {
  root = isRoot_;
  return 0;
}
