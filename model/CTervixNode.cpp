#include "CTervixNode.h"

#include "TervixFiles.h"
#include "foundation/LastError.h"
#include "model/NodeListing.h"

namespace {

unsigned long setText(std::string& field, const std::string& value) {
  if (!value.empty())
    field = value;
  return 0;
}

unsigned long setKey(CTervixNode& node, tervix::NodeKey key, std::string& field,
                     const std::string& value) {
  const tervix::KeyChange change(node, key);
  return setText(field, value);
}

unsigned long getText(const std::string& field, std::string& value) {
  value = field;
  return field.empty() ? 1 : 0;
}

template <class Value> unsigned long setValue(Value& field, Value value) {
  if (value != Value())
    field = value;
  return 0;
}

template <class Value> unsigned long getValue(const Value& field, Value& value) {
  if (field == Value())
    return 1;
  value = field;
  return 0;
}

} // namespace

CTervixNode::CTervixNode() = default;
CTervixNode::CTervixNode(const CTervixNode& other)
    : name_(other.name_), type_(other.type_), parent_(other.parent_), path_(other.path_),
      folderPath_(other.folderPath_), frontEndId_(other.frontEndId_),
      projectType_(other.projectType_) {}
CTervixNode::~CTervixNode() {
  tervix::NodeListing::forget(*this);
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,misc-unconventional-assign-operator)
CTervixNode& CTervixNode::operator=(const CTervixNode&) {
  return *this;
}
unsigned long CTervixNode::clone(CTervixNode&) {
  return 0;
}

unsigned long CTervixNode::setName(std::string& name) {
  return setKey(*this, tervix::NodeKey::kName, name_, name);
}
unsigned long CTervixNode::setPath(std::string& path) {
  return setKey(*this, tervix::NodeKey::kPath, path_, path);
}
unsigned long CTervixNode::setFolderPath(std::string& folderPath) {
  return setText(folderPath_, folderPath);
}
unsigned long CTervixNode::setType(NODE_TYPE type) {
  return setValue(type_, type);
}
unsigned long CTervixNode::setFrontEndId(FRONTEND_ID frontEndId) {
  return setValue(frontEndId_, frontEndId);
}
unsigned long CTervixNode::setProjectType(PROJECT_TYPE projectType) {
  return setValue(projectType_, projectType);
}
unsigned long CTervixNode::setParent(CTervixNode* parent) {
  return setValue(parent_, parent);
}

unsigned long CTervixNode::getName(std::string& name) const {
  return getText(name_, name);
}
unsigned long CTervixNode::getPath(std::string& path) const {
  return getText(path_, path);
}
unsigned long CTervixNode::getFolderPath(std::string& folderPath) const {
  return getText(folderPath_, folderPath);
}
unsigned long CTervixNode::getType(NODE_TYPE& type) const {
  return getValue(type_, type);
}
unsigned long CTervixNode::getFrontEndId(FRONTEND_ID& frontEndId) const {
  return getValue(frontEndId_, frontEndId);
}
unsigned long CTervixNode::getProjectType(PROJECT_TYPE& projectType) const {
  return getValue(projectType_, projectType);
}
unsigned long CTervixNode::getParent(CTervixNode*& parent) const {
  return getValue(parent_, parent);
}

unsigned long CTervixNode::createFolder(std::string& folderPath) {
  folderPath.clear();
  if (projectType_ != PROJECT_TYPE_SIMULATION)
    return 1;
  if (const unsigned long status = getFolderPath(folderPath); status != 0)
    return status;
  if (createDir(folderPath) == 0)
    return 0;
  return tervix::raiseError(tervix::kCannotCreateDirectory, folderPath);
}
