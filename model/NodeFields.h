#pragma once

#include <string>

#include "CTervixNode.h"
#include "model/NodeAccess.h"

namespace tervix {

// The fields of a node; empty or 0 when unset. A text is valid until its field is set again.
inline const std::string& nameOf(const CTervixNode& node) {
  return NodeAccess::name(node);
}

inline const std::string& pathOf(const CTervixNode& node) {
  return NodeAccess::path(node);
}

inline const std::string& folderPathOf(const CTervixNode& node) {
  return NodeAccess::folderPath(node);
}

inline const std::string& displayNameOf(const CTervixProfile& profile) {
  return NodeAccess::displayName(profile);
}

inline FRONTEND_ID frontEndOf(const CTervixNode& node) {
  return NodeAccess::frontEnd(node);
}

inline PROJECT_TYPE projectTypeOf(const CTervixNode& node) {
  return NodeAccess::projectType(node);
}

// Whether a text can name a node that is made from a C string.
inline bool isNodeName(const std::string& name) {
  return !name.empty() && name.find('\0') == std::string::npos;
}

inline bool isSimulation(const CTervixNode& node) {
  return projectTypeOf(node) == PROJECT_TYPE_SIMULATION;
}

inline CTervixNode* parentOf(const CTervixNode& node) {
  return NodeAccess::parent(node);
}

} // namespace tervix
