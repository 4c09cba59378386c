#include "CTervixProject.h"
#include "TervixFiles.h"

// The plain fields of a project. None is checked, and unlike a node's fields they can be cleared.

namespace {

template <class Value> unsigned long assign(Value& target, const Value& source) {
  target = source;
  return 0;
}

} // namespace

unsigned long CTervixProject::setInitializationPath(std::string& path) {
  return assign(initializationPath_, path);
}
unsigned long CTervixProject::getInitializationPath(std::string& path) const {
  return assign(path, initializationPath_);
}
unsigned long CTervixProject::setInitializationTime(long seconds) {
  return assign(initializationTime_, seconds);
}
unsigned long CTervixProject::getInitializationTime(long& seconds) const {
  return assign(seconds, initializationTime_);
}
unsigned long CTervixProject::setDesignName(std::string& name) {
  return assign(designName_, name);
}
unsigned long CTervixProject::getDesignName(std::string& name) const {
  return assign(name, designName_);
}
unsigned long CTervixProject::setDesignPath(std::string& path) {
  return assign(designPath_, path);
}
unsigned long CTervixProject::getDesignPath(std::string& path) const {
  return assign(path, designPath_);
}
unsigned long CTervixProject::setDesignFolderPath(std::string& path) {
  return assign(designFolderPath_, path);
}
unsigned long CTervixProject::getDesignFolderPath(std::string& path) const {
  return assign(path, designFolderPath_);
}
unsigned long CTervixProject::setTervixOutputFile(std::string& path) {
  return assign(tervixOutputFile_, path);
}
unsigned long CTervixProject::getTervixOutputFile(std::string& path) const {
  return assign(path, tervixOutputFile_);
}

unsigned long CTervixProject::getProjectType(PROJECT_TYPE& projectType) const {
  projectType = PROJECT_TYPE_UNSET;
  CTervixNode::getProjectType(projectType);
  return 0;
}

unsigned long CTervixProject::setParent(CTervixNode* parent) {
  return CTervixNode::setParent(parent);
}
unsigned long CTervixProject::getParent(CTervixNode*& parent) const {
  return CTervixNode::getParent(parent);
}

unsigned long CTervixProject::addRef() {
  ++refCount_;
  return 0;
}
unsigned long CTervixProject::release() {
  --refCount_;
  return 0;
}
unsigned long CTervixProject::setRefCount(unsigned int count) {
  return assign(refCount_, count);
}
unsigned long CTervixProject::getRefCount(unsigned int& count) {
  return assign(count, refCount_);
}

unsigned long CTervixProject::isPrpIndexStale(bool& stale) {
  return assign(stale, prpIndexStale_);
}
unsigned long CTervixProject::setPrpIndexStale(bool stale) {
  return assign(prpIndexStale_, stale);
}

unsigned long CTervixProject::createFolder(std::string& path) {
  return createPath(path);
}
unsigned long CTervixProject::copyFolder(std::string& from, std::string& to) {
  return cpDir(from, to);
}

unsigned long CTervixProject::setChangedName(std::string& formerName, std::string& newName,
                                             RENAME_TYPE kind) {
  changedName_ = formerName;
  changedNewName_ = newName;
  renameType_ = kind;
  return 0;
}
unsigned long CTervixProject::getChangedName(std::string& formerName, std::string& newName,
                                             RENAME_TYPE& kind) const {
  formerName = changedName_;
  newName = changedNewName_;
  kind = renameType_;
  return 0;
}
