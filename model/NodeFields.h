#pragma once

#include <string>

#include "CTervixNode.h"

namespace tervix {

// The fields of a node as values; empty or 0 when unset.
inline std::string nameOf(const CTervixNode& node) {
  std::string name;
  node.getName(name);
  return name;
}

inline std::string pathOf(const CTervixNode& node) {
  std::string path;
  node.getPath(path);
  return path;
}

inline std::string folderPathOf(const CTervixNode& node) {
  std::string folder;
  node.getFolderPath(folder);
  return folder;
}

inline FRONTEND_ID frontEndOf(const CTervixNode& node) {
  FRONTEND_ID frontEnd = FRONTEND_ID_UNSET;
  node.getFrontEndId(frontEnd);
  return frontEnd;
}

inline PROJECT_TYPE projectTypeOf(const CTervixNode& node) {
  PROJECT_TYPE type = PROJECT_TYPE_UNSET;
  node.getProjectType(type);
  return type;
}

// Whether a text can name a node that is made from a C string.
inline bool isNodeName(const std::string& name) {
  return !name.empty() && name.find('\0') == std::string::npos;
}

inline bool isSimulation(const CTervixNode& node) {
  return projectTypeOf(node) == PROJECT_TYPE_SIMULATION;
}

inline CTervixNode* parentOf(const CTervixNode& node) {
  CTervixNode* parent = nullptr;
  node.getParent(parent);
  return parent;
}

} // namespace tervix
