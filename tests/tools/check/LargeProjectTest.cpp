#include <gtest/gtest.h>

#include "tests/tools/check/CheckFixture.h"

// Where there is much to read, several threads do it: nothing is passed over, nothing told twice.

using namespace tervix::testing;

namespace {

constexpr int kProfiles = 500;

std::string profile(int number) {
  return "p" + std::to_string(1000 + number); // in the order in which they are told
}

// Adds profiles in a folder of them, each of which names an include file that is not there.
void addProfiles(const CheckedSample& project, const std::string& folder) {
  for (int i = 0; i < kProfiles; ++i) {
    const std::string name = profile(i);
    project.write(folder + name + ".sim",
                  "ProfileName = \"" + name + "\"\nRootSchematics = \"\"\n");
    project.write(folder + name + "/" + name + "_profile.inc", ".INC \"gone.inc\"\n");
  }
}

std::vector<std::string> forEachProfile(const std::string& before, const std::string& after) {
  std::vector<std::string> findings;
  for (int i = 0; i < kProfiles; ++i)
    findings.push_back(before + profile(i) + (after.empty() ? ".sim" : "/" + profile(i) + after));
  return findings;
}

TEST(LargeProjectOfFrontEnd1, IsCheckedToTheLastFile) {
  const CheckedSample project(2);
  addProfiles(project, "profiles/");
  EXPECT_EQ(findingsIn(project.checkedAsJson()),
            forEachProfile("missing-include profiles/", "_profile.inc:1"));
}

TEST(LargeProjectOfFrontEnd2, IsCheckedToTheLastFile) {
  const CheckedSample project(0);
  addProfiles(project, "amp-TervixFiles/TOP/");
  EXPECT_EQ(findingsIn(project.checkedAsJson()),
            forEachProfile("unregistered-profile amp-TervixFiles/TOP/", ""));
}

TEST(LargeProject, ThatCannotBeOpenedIsNoTrouble) {
  const CheckedSample project(0);
  addProfiles(project, "amp-TervixFiles/TOP/");
  project.write("amp.tvp", "[");
  EXPECT_EQ(findingsIn(project.checkedAsJson()),
            std::vector<std::string>{"project-unopenable amp.tvp:1"});
}

} // namespace
