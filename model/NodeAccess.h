#pragma once

#include <string>
#include <utility>

#include "CTervixNode.h"
#include "CTervixProfile.h"
#include "CTervixProject.h"

namespace tervix {

// The fields of nodes by reference, for the library's own code; empty or 0 when unset.
struct NodeAccess {
  static const std::string& name(const CTervixNode& node) { return node.name_; }
  static const std::string& path(const CTervixNode& node) { return node.path_; }
  static const std::string& folderPath(const CTervixNode& node) { return node.folderPath_; }
  static FRONTEND_ID frontEnd(const CTervixNode& node) { return node.frontEndId_; }
  static PROJECT_TYPE projectType(const CTervixNode& node) { return node.projectType_; }
  static CTervixNode* parent(const CTervixNode& node) { return node.parent_; }
  static const std::string& displayName(const CTervixProfile& profile) {
    return profile.displayName_;
  }
  static const std::string& markerKey(const CTervixProfile& profile) { return profile.markerKey_; }
  static const std::string& designName(const CTervixProject& project) {
    return project.designName_;
  }
  // For a node that no list holds yet.
  static void takePlace(CTervixNode& node, std::string path, std::string folderPath) {
    node.path_ = std::move(path);
    node.folderPath_ = std::move(folderPath);
  }
  static NodeCell*& cells(CTervixNode& node) { return node.cells_; }
};

} // namespace tervix
