#include <gtest/gtest.h>

#include "tests/support/ProjectBuilder.h"
#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/check/CheckFixture.h"

// A healthy project has no findings, from whatever file it is opened.

using namespace tervix::testing;

namespace {

class HealthyProject : public ::testing::TestWithParam<std::size_t> {
protected:
  CheckedSample project_{GetParam()};
};

TEST_P(HealthyProject, HasNoFindings) {
  for (const std::string& file : project_.openable()) {
    const ToolRun run = runTool({"check", file, "--strict"});
    EXPECT_EQ(run.output, "nothing found\n") << file;
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.status, 0);
  }
}

TEST_P(HealthyProject, IsLeftAsItIs) {
  const auto files = project_.openable();
  const EntriesOnDisk before = entriesOf(project_.folder());
  for (const std::string& file : files)
    for (const Arguments& options : {Arguments{}, {"--json"}, {"--fix"}, {"--fix", "--dry-run"}}) {
      Arguments arguments = {"check", file};
      arguments.insert(arguments.end(), options.begin(), options.end());
      EXPECT_EQ(runTool(arguments).status, 0);
    }
  expectUntouched(before, entriesOf(project_.folder()), "checking");
}

// What other commands of the tool make is healthy, too.
TEST_P(HealthyProject, IsWhatTheToolMakes) {
  const std::string profile = GetParam() == 3 ? "ac" : "tran";
  ASSERT_EQ(runTool({"profile", "add", project_.project(), "fresh"}).status, 0);
  ASSERT_EQ(runTool({"profile", "copy", project_.project(), profile, "second"}).status, 0);
  ASSERT_EQ(runTool({"profile", "rename", project_.project(), profile, "renamed"}).status, 0);
  EXPECT_EQ(findingsIn(project_.checkedAsJson()), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(All, HealthyProject, ::testing::Range<std::size_t>(0, 4));

// Projects may share a folder: what belongs to one is no finding of the other.
TEST(SharedFolder, KeepsProjectsApart) {
  const CheckedSample project(1);
  project.write("other.sim", "ProfileName = \"x\"\nRootSchematics = \"TOP\"\n");
  project.write("amp-TOP-foreign.sim",
                "ProfileName = \"x\"\nRootSchematics = \"TOP\"\nProjectFile = \"other.tvp\"\n");
  project.makeFolder("other-TervixFiles");
  project.write("amp-TOP-foreign.sim.bak", "");
  project.write("other.tvp", "");
  EXPECT_EQ(findingsIn(project.checkedAsJson()), std::vector<std::string>());
}

// A run makes these, or the front end does before it.
TEST(FreshProfile, NeedsNeitherNetlistNorResults) {
  const CheckedSample project(0);
  project.remove("amp-TervixFiles/BIAS/dc");
  project.remove("amp-TervixFiles/BIAS/BIAS.net");
  project.replace("amp-TervixFiles/TOP/tran/tran.cir", ".include ../../BIAS/BIAS.net\n", "");
  project.replace("amp-TervixFiles/TOP/ac/ac.cir", ".include ../../BIAS/BIAS.net\n", "");
  EXPECT_EQ(findingsIn(project.checkedAsJson()), std::vector<std::string>());
}

TEST(LongNames, AreCountedInCharacters) {
  const CheckedSample project(1);
  std::string name;
  for (int i = 0; i < 80; ++i)
    name += "\xe6\x97\xa5";
  project.write(name, "");
  EXPECT_GT(project.path(name).size(), 259U);
  EXPECT_EQ(findingsIn(project.checkedAsJson()), std::vector<std::string>());
}

TEST(NamesInSimFiles, MayDifferInCaseAndFolder) {
  const CheckedSample project(1);
  project.replace("amp-TOP-ac.sim", "\"amp.tvp\"", "\"C:\\work\\AMP.TVP\"");
  project.replace("amp-TOP-ac.sim", "\"amp-TOP-ac.sim\"", "\"/projects/AMP-top-ac.sim\"");
  EXPECT_EQ(findingsIn(project.checkedAsJson()), std::vector<std::string>());
}

} // namespace
