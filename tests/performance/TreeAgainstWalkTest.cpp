#include <functional>
#include <optional>

#include <gtest/gtest.h>

#include "tests/performance/PlainWalk.h"

namespace tervix::testing {
namespace {

struct Match {
  CTervixNode* schematic = nullptr;
  CTervixNode* profile = nullptr;
};
using Matches = std::function<bool(CTervixProfile&)>;

Match firstProfile(CTervixProject& project, const Matches& matches) {
  Match match;
  for (project.getTopSchematic(match.schematic); match.schematic != nullptr;
       project.getNextSchematic(match.schematic)) {
    auto& schematic = static_cast<CTervixSchematic&>(*match.schematic);
    for (schematic.getTopProfile(match.profile); match.profile != nullptr;
         schematic.getNextProfile(match.profile))
      if (matches(static_cast<CTervixProfile&>(*match.profile)))
        return match;
  }
  return {};
}

std::string keyOf(const CTervixProfile& profile) {
  return textOf(profile, &CTervixProfile::getMarkerKey);
}

class TreeAgainstWalk : public ::testing::TestWithParam<unsigned int> {
protected:
  TreeAgainstWalk() {
    project_.setFrontEndId(FRONTEND_ID_DESIGN_FILE);
    project_.setProjectType(PROJECT_TYPE_OTHER);
    project_.setName(arg("prj"));
    project_.setFolderPath(arg("/p"));
    project_.setDesignName(arg("D"));
  }
  ~TreeAgainstWalk() override { destroySchematics(project_); }

  CTervixNode* anySchematic() {
    return pick(project_, &CTervixProject::getTopSchematic, &CTervixProject::getNextSchematic);
  }
  CTervixProfile* anyProfile() {
    auto* const schematic = static_cast<CTervixSchematic*>(anySchematic());
    return schematic == nullptr
               ? nullptr
               : static_cast<CTervixProfile*>(pick(*schematic, &CTervixSchematic::getTopProfile,
                                                   &CTervixSchematic::getNextProfile));
  }

  void change() {
    CTervixProfile* const profile = anyProfile();
    CTervixNode* const schematic = anySchematic();
    switch (texts_.below(10)) {
    case 0:
      project_.deleteSchematic(arg(texts_.name()));
      break;
    case 1:
      if (schematic != nullptr)
        static_cast<CTervixSchematic*>(schematic)->deleteProfile(arg(texts_.name()));
      break;
    case 2:
      if (schematic != nullptr)
        schematic->setName(arg(texts_.name()));
      break;
    case 3:
      if (profile != nullptr)
        profile->setName(arg(texts_.name()));
      break;
    case 4:
      if (profile != nullptr)
        profile->setPath(arg(texts_.path()));
      break;
    case 5:
      if (profile != nullptr)
        profile->setMarkerKey();
      break;
    case 6:
      copyProject();
      break;
    default:
      addProfile(project_, texts_.name(), texts_.name());
    }
  }

  // Copies of a project share its schematics, and hear of their changes too.
  void copyProject() {
    if (copy_)
      copy_.reset();
    else
      copy_.emplace(project_);
  }

  void compare(CTervixProject& project) {
    const std::string name = texts_.name();
    const std::string path =
        texts_.oneIn(2) ? texts_.path() : "/P\\d-" + texts_.name() + "-" + texts_.name() + ".sim";
    const std::string key = texts_.oneIn(20) ? "" : "d-" + texts_.name() + "-" + name + ".MRK";

    const Match atPath =
        firstProfile(project, [&](CTervixProfile& profile) { return liesAt(profile, path); });
    CTervixNode* found = nullptr;
    bool exists = false;
    project.simProfileExists(exists, found, arg(std::string(path)));
    ASSERT_EQ(found, atPath.profile) << path;
    ASSERT_EQ(exists, found != nullptr);

    const Match ofKey = firstProfile(
        project, [&](CTervixProfile& profile) { return plainlyEqual(keyOf(profile), key); });
    project.markerKeyExists(exists, arg(std::string(key)));
    ASSERT_EQ(exists, ofKey.profile != nullptr) << key;
    std::string design;
    std::string schematicName;
    std::string profileName;
    project.getDsnSchProfNamesForMarkerKey(design, schematicName, profileName,
                                           arg(std::string(key)));
    ASSERT_EQ(schematicName, exists ? plainName(*ofKey.schematic) : "") << key;
    ASSERT_EQ(profileName, exists ? plainName(*ofKey.profile) : "") << key;

    const Match ofName =
        firstProfile(project, [&](CTervixProfile& profile) { return isNamed(profile, name); });
    std::string parent;
    project.getParentNameForProfile(parent, arg(std::string(name)));
    ASSERT_EQ(parent, ofName.profile != nullptr ? plainName(*ofName.schematic) : "") << name;
    std::string file;
    std::string expected;
    project.getProfileBasedFile(file, arg(std::string(name)), PROFILE_FILE_MRK);
    if (ofName.profile != nullptr)
      static_cast<CTervixProfile*>(ofName.profile)->getProfileBasedFile(expected, PROFILE_FILE_MRK);
    ASSERT_EQ(file, expected) << name;
  }

  void compareNames() {
    std::string schematicName = texts_.name();
    std::string profileName = texts_.name();
    CTervixNode* expected = nullptr;
    CTervixNode* node = nullptr;
    for (project_.getTopSchematic(node); node != nullptr; project_.getNextSchematic(node))
      if (isNamed(*node, schematicName))
        break;
    if (auto* const schematic = static_cast<CTervixSchematic*>(node))
      for (schematic->getTopProfile(expected); expected != nullptr;
           schematic->getNextProfile(expected))
        if (isNamed(*expected, profileName))
          break;
    CTervixNode* found = nullptr;
    project_.findProfile(found, schematicName, profileName);
    ASSERT_EQ(found, expected) << schematicName << " " << profileName;
  }

  template <class Holder>
  CTervixNode* pick(Holder& holder, unsigned long (Holder::*top)(CTervixNode*&),
                    unsigned long (Holder::*next)(CTervixNode*&)) {
    CTervixNode* node = nullptr;
    (holder.*top)(node);
    for (int steps = texts_.below(6); steps > 0 && node != nullptr; --steps) {
      CTervixNode* following = nullptr;
      (holder.*next)(following);
      if (following == nullptr)
        break;
      node = following;
    }
    return node;
  }

  RandomTexts texts_{GetParam()};
  CTervixProject project_;
  std::optional<CTervixProject> copy_;
};

TEST_P(TreeAgainstWalk, FindsTheSameProfiles) {
  for (int step = 0; step < 1500 && !HasFatalFailure(); ++step) {
    // A copy must not outlive a schematic that it shares.
    change();
    compare(project_);
    compareNames();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TreeAgainstWalk, ::testing::Range(100U, 120U));

TEST(CopiesOfAProject, FollowTheSchematicsThatTheyShare) {
  CTervixProject project;
  project.setFrontEndId(FRONTEND_ID_DESIGN_FILE);
  project.setProjectType(PROJECT_TYPE_OTHER);
  project.setFolderPath(arg("/p"));
  project.setDesignName(arg("D"));
  CTervixProfile* const profile = testing::addProfile(project, "S", "a");
  CTervixProject copy(project);
  bool exists = false;
  CTervixNode* found = nullptr;
  copy.simProfileExists(exists, found, arg("/p/D-S-a.sim"));
  EXPECT_TRUE(exists);
  profile->setPath(arg("/p/new.sim"));
  copy.simProfileExists(exists, found, arg("/p/D-S-a.sim"));
  EXPECT_FALSE(exists);
  copy.simProfileExists(exists, found, arg("/P/NEW.sim"));
  EXPECT_EQ(found, profile);
  testing::addProfile(project, "S", "b");
  copy.markerKeyExists(exists, arg("D-S-b.mrk"));
  EXPECT_TRUE(exists);
  destroySchematics(project);
}

} // namespace
} // namespace tervix::testing
