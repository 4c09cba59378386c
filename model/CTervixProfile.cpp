#include "CTervixProfile.h"

#include <utility>

#include "foundation/PathNames.h"
#include "foundation/Text.h"
#include "foundation/platform/Platform.h"
#include "model/NodeAccess.h"
#include "model/NodeFields.h"
#include "model/NodeListing.h"
#include "model/ProfileNames.h"
#include "model/ProjectLink.h"

namespace {

unsigned long setUnlessEmpty(std::string& field, const std::string& value) {
  if (!value.empty())
    field = value;
  return 0;
}

unsigned long getUnlessEmpty(const std::string& field, std::string& value) {
  value = field;
  return field.empty() ? 1 : 0;
}

// Deliberate: a path that is not set leaves the output as it was.
unsigned long getRunFile(const std::string& field, std::string& path) {
  if (field.empty())
    return 1;
  path = field;
  return 0;
}

} // namespace

CTervixProfile::CTervixProfile() {
  setType(NODE_TYPE_PROFILE);
}

CTervixProfile::CTervixProfile(const char* path, const char* name, const char* displayName,
                               FRONTEND_ID frontEndId, PROJECT_TYPE projectType,
                               CTervixNode* parent)
    : CTervixProfile() {
  setFrontEndId(frontEndId);
  setProjectType(projectType);
  CTervixNode::setParent(parent);
  if (displayName != nullptr)
    displayName_ = displayName;
  if (path != nullptr && name != nullptr) {
    std::string ownName(name);
    setName(ownName);
    std::string simPath(path);
    auto folder = tervix::folderOf(simPath);
    if (folder && projectType == PROJECT_TYPE_SIMULATION) {
      folder = tervix::joined({*folder, "/", ownName});
      variantFilePath_ = tervix::includeListIn(*folder, ownName);
    }
    tervix::NodeAccess::takePlace(*this, std::move(simPath), std::move(folder).value_or(""));
  }
  setMarkerKey();
  CTervixProfile::readProfileLevelVariants();
}

CTervixProfile::CTervixProfile(const CTervixProfile& other) = default;

CTervixProfile::~CTervixProfile() {
  tervix::NodeListing::forget(*this);
  variantsUpdated_ = true;
  writeProfileLevelVariants();
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,misc-unconventional-assign-operator)
CTervixProfile& CTervixProfile::operator=(const CTervixProfile&) {
  return *this;
}
unsigned long CTervixProfile::clone(CTervixProfile&) {
  return 0;
}

unsigned long CTervixProfile::writeVariants() {
  return writeProfileLevelVariants();
}
unsigned long CTervixProfile::readVariants() {
  return readProfileLevelVariants();
}

unsigned long CTervixProfile::setParent(CTervixNode* parent) {
  return CTervixNode::setParent(parent);
}
unsigned long CTervixProfile::getParent(CTervixNode*& parent) const {
  return CTervixNode::getParent(parent);
}

unsigned long CTervixProfile::setDisplayName(std::string& displayName) {
  return setUnlessEmpty(displayName_, displayName);
}
unsigned long CTervixProfile::getDisplayName(std::string& displayName) const {
  return getUnlessEmpty(displayName_, displayName);
}

unsigned long CTervixProfile::setActive(bool active) {
  active_ = active;
  return 0;
}
unsigned long CTervixProfile::isActive(bool& active) const {
  active = active_;
  return 0;
}

unsigned long CTervixProfile::setVariantFilePath(std::string& path) {
  // A file that could not be read stays protected where a rename is about to carry it.
  if (variantFileUnread_ && !path.empty())
    variantFileUnread_ = !tervix::platform::exists(path);
  return setUnlessEmpty(variantFilePath_, path);
}
unsigned long CTervixProfile::getVariantFilePath(std::string& path) const {
  return getUnlessEmpty(variantFilePath_, path);
}

unsigned long CTervixProfile::setVariantsUpdated(bool updated) {
  variantsUpdated_ = updated;
  return 0;
}
unsigned long CTervixProfile::areVariantsUpdated(bool& updated) const {
  updated = variantsUpdated_;
  return 0;
}

unsigned long CTervixProfile::resolveRunFile(std::string& path, std::string& field) const {
  if (path.empty()) {
    field.clear();
    return 0;
  }
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  if (const unsigned long status = getFrontEndId(frontEnd); status != 0)
    return status;
  path = tervix::toForwardSlashes(path);
  std::string base = tervix::folderPathOf(*this);
  if (!tervix::folderOf(path)) {
    if (base.empty())
      return 1;
    field = base + "/" + path;
    return 0;
  }
  bool isRelative = false;
  if (!tervix::platform::isRooted(path))
    isRelativePathName(path, isRelative);
  if (!isRelative) {
    field = path;
    return 0;
  }
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  if (const unsigned long status = getProjectType(type); status != 0)
    return status;
  if (base.empty())
    return 1;
  if (type == PROJECT_TYPE_SIMULATION && getFilePathFromFileNamePath(base, base) != 0)
    return 0;
  std::string resolved;
  if (getAbsolutePathName(path, base, resolved) != 0)
    return 1;
  field = resolved;
  return 0;
}

unsigned long CTervixProfile::setDatFilePath(std::string& path) {
  return resolveRunFile(path, datFilePath_);
}
unsigned long CTervixProfile::setOutFilePath(std::string& path) {
  return resolveRunFile(path, outFilePath_);
}
unsigned long CTervixProfile::getDatFilePath(std::string& path) const {
  return getRunFile(datFilePath_, path);
}
unsigned long CTervixProfile::getOutFilePath(std::string& path) const {
  return getRunFile(outFilePath_, path);
}

unsigned long CTervixProfile::setMarkerKey() {
  const tervix::KeyChange change(*this, tervix::NodeKey::kMarkerKey);
  markerKey_.clear();
  const CTervixNode* schematic = tervix::parentOf(*this);
  const CTervixProject* project = schematic != nullptr ? tervix::projectAbove(*schematic) : nullptr;
  if (project == nullptr)
    return 1;
  markerKey_ = tervix::joined({tervix::designNameOf(*project), "-", tervix::nameOf(*schematic), "-",
                               tervix::nameOf(*this), tervix::kMarkerEnding});
  return 0;
}

unsigned long CTervixProfile::getMarkerKey(std::string& markerKey) const {
  markerKey = markerKey_;
  return 0;
}
