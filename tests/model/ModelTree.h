#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "CTervixProject.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {

using Snapshot = std::map<std::string, std::string>;

// What a getter hands out, "-" when it says that the field is not set.
template <class Node, class Getter> std::string got(Node& node, Getter getter) {
  std::string value = "before";
  return (node.*getter)(value) == 0 ? value : "-";
}

inline std::string nameOf(CTervixNode& node) {
  return got(node, &CTervixNode::getName);
}
inline std::string pathOf(CTervixNode& node) {
  return got(node, &CTervixNode::getPath);
}
inline std::string folderOf(CTervixNode& node) {
  return got(node, &CTervixNode::getFolderPath);
}

// The project "prj" of the design "amp" in the folder P with the schematic TOP. No two names are
// alike, so that a mix-up shows.
class ModelTree : public ::testing::Test {
protected:
  ModelTree() {
    forgetLastError();
    project_.setName(text("prj"));
    project_.setFolderPath(text(place("")));
    project_.setDesignName(text("amp"));
    project_.setDesignFolderPath(text(place("")));
  }

  // A path in the project's folder.
  std::string place(const std::string& name) const {
    return folder_.path(name.empty() ? "P" : "P/" + name);
  }
  std::string file(const std::string& name, const std::string& content = "") const {
    return folder_.file("P/" + name, content);
  }
  Snapshot snapshot() const { return snapshotOf(folder_.path("P")); }

  // The folder in which the schematic's files lie.
  std::string topFolder() const {
    return type_ == PROJECT_TYPE_SIMULATION ? place("prj-TervixFiles/TOP") : place("");
  }

  CTervixSchematic& makeTop(FRONTEND_ID frontEnd, PROJECT_TYPE type) {
    frontEnd_ = frontEnd;
    type_ = type;
    project_.setFrontEndId(frontEnd);
    project_.setProjectType(type);
    top_ =
        std::make_unique<CTervixSchematic>(topFolder().c_str(), "TOP", frontEnd, type, &project_);
    return *top_;
  }

  // A profile that no list owns, under TOP, with the ".sim" file at this path.
  std::unique_ptr<CTervixProfile> makeProfile(const std::string& simPath,
                                              const std::string& name = "tran") {
    return std::make_unique<CTervixProfile>(simPath.c_str(), name.c_str(), "shown", frontEnd_,
                                            type_, top_.get());
  }

  CTervixProfile& addProfile(const std::string& name) {
    CTervixNode* profile = nullptr;
    EXPECT_EQ(top_->addProfile(profile, text(std::string(name)), text("TOP-" + name)), 0U);
    return dynamic_cast<CTervixProfile&>(*profile);
  }

  const TemporaryFolder folder_;
  FRONTEND_ID frontEnd_ = FRONTEND_ID_UNSET;
  PROJECT_TYPE type_ = PROJECT_TYPE_UNSET;
  CTervixProject project_;
  std::unique_ptr<CTervixSchematic> top_;
};

} // namespace tervix::testing
