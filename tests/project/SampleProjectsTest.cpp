#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/project/OpenedProject.h"

// The sample projects, opened from each of their files.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

struct Sample {
  const char* name;
  const char* folder; // below the examples, as it must stand in a workspace
  const char* projectFile;
  const char* profile;
  const char* analysis;
  int frontEnd;
  PROJECT_TYPE type;
  const char* design;
  Lines tree; // profiles of the second front end sorted
  Lines files[3];
  const char* outputFile;
};

void PrintTo(const Sample& sample, std::ostream* stream) {
  *stream << sample.name;
}

const Sample kSamples[] = {
    {"Simulation",
     "amp-simulation",
     "amp.tvp",
     "amp-TervixFiles/TOP/ac.sim",
     "amp-TervixFiles/TOP/TOP",
     2,
     PROJECT_TYPE_SIMULATION,
     "amp",
     {"TOP root", "  tran TOP-tran active", "  ac TOP-ac", "BIAS", "  dc BIAS-dc"},
     {{"opamp.lib"}, {"pulse.stl"}, {"supply.inc"}},
     "./amp-TervixFiles/TOP/tran/tran.out"},
    {"Flat",
     "amp-flat",
     "amp.tvp",
     "amp-TOP-ac.sim",
     "amp-TOP",
     2,
     PROJECT_TYPE_OTHER,
     "amp",
     {"TOP root", "  tran TOP-tran active", "  ac TOP-ac"},
     {{"npn.lib"}, {"sine.stl"}, {"supply.inc"}},
     "./amp-TOP-tran.out"},
    {"WorkspaceSimulation",
     "workspace/amp/tvx_sim_1",
     "amp.tvp",
     "profiles/noise.sim",
     "amp",
     1,
     PROJECT_TYPE_SIMULATION,
     "amp",
     {"amp", "  noise", "  tran"},
     {{"npn.lib"}, {}, {"supply.inc"}},
     ""},
    {"WorkspaceAnalog",
     "workspace/flt/cfg_analog",
     "flt.tvp",
     "step.sim",
     "flt-flt",
     1,
     PROJECT_TYPE_OTHER,
     "flt",
     {"flt", "  ac", "  step"},
     {{"opamp.lib"}, {}, {"supply.inc"}},
     ""}};

class SampleProject : public ::testing::TestWithParam<Sample> {
protected:
  SampleProject() {
    fs::create_directories(place);
    fs::copy(std::string(TERVIX_EXAMPLES) + "/" + GetParam().folder, place,
             fs::copy_options::recursive);
  }
  std::string at(const std::string& name) const { return place + "/" + name; }

  void expectWhole(CTervixProject& project) {
    const Sample& sample = GetParam();
    EXPECT_EQ(project.initialize(), 0u);
    EXPECT_EQ(frontEndIn(project), sample.frontEnd);
    EXPECT_EQ(projectTypeIn(project), sample.type);
    EXPECT_EQ(textOf(project, &CTervixNode::getPath), at(sample.projectFile));
    EXPECT_EQ(textOf(project, &CTervixProject::getDesignName), sample.design);
    EXPECT_EQ(textOf(project, &CTervixProject::getTervixOutputFile), sample.outputFile);
    Lines tree = treeOf(project);
    // Read from a folder, profiles come in the order of the disk.
    if (sample.frontEnd == FRONTEND_ID_PROJECT_FILE && !tree.empty())
      std::sort(tree.begin() + 1, tree.end());
    EXPECT_EQ(tree, sample.tree);
    for (int type = 0; type < 3; ++type)
      EXPECT_EQ(designLevelFiles(project, static_cast<VARIANTFILE_TYPE>(type)), sample.files[type]);
  }

  TemporaryFolder folder;
  std::string place = folder.path(GetParam().folder);
};
INSTANTIATE_TEST_SUITE_P(Of, SampleProject, ::testing::ValuesIn(kSamples),
                         [](const auto& sample) { return std::string(sample.param.name); });

TEST_P(SampleProject, OpensFromItsProjectFile) {
  OpenedProject project(at(GetParam().projectFile), GetParam().frontEnd);
  expectWhole(*project);
}

TEST_P(SampleProject, OpensFromAProfile) {
  OpenedProject project(at(GetParam().profile), 0);
  expectWhole(*project);
}

TEST_P(SampleProject, OpensFromAnAnalysisAndItsBackup) {
  for (const char* ending : {".aap", ".$ap"}) {
    OpenedProject project(at(GetParam().analysis) + ending, 0);
    expectWhole(*project);
  }
}

TEST_P(SampleProject, KnowsEachOfItsProfileFiles) {
  OpenedProject project(at(GetParam().projectFile), GetParam().frontEnd);
  ASSERT_EQ(project->initialize(), 0u);
  int profiles = 0;
  for (const auto& entry : fs::recursive_directory_iterator(place)) {
    if (entry.path().extension() != ".sim")
      continue;
    ++profiles;
    std::string path = entry.path().generic_string();
    bool exists = false;
    CTervixNode* profile = nullptr;
    EXPECT_EQ(project->simProfileExists(exists, profile, path), 0u);
    EXPECT_TRUE(exists) << path;
  }
  EXPECT_GT(profiles, 1);
}

TEST_P(SampleProject, HasTheFilesThatItsTreeNames) {
  OpenedProject project(at(GetParam().projectFile), GetParam().frontEnd);
  ASSERT_EQ(project->initialize(), 0u);
  CTervixNode* node = nullptr;
  for (project->getTopSchematic(node); node != nullptr; project->getNextSchematic(node)) {
    auto& schematic = static_cast<CTervixSchematic&>(*node);
    CTervixNode* next = nullptr;
    for (schematic.getTopProfile(next); next != nullptr; schematic.getNextProfile(next)) {
      auto& profile = static_cast<CTervixProfile&>(*next);
      for (PROFILEFILE_TYPE type : {PROFILE_FILE_DAT, PROFILE_FILE_OUT, PROFILE_FILE_CIR}) {
        std::string file;
        EXPECT_EQ(profile.getProfileBasedFile(file, type), 0u);
        EXPECT_TRUE(isFile(file)) << file;
      }
    }
  }
}

TEST_P(SampleProject, ListsDesignLevelFilesThatExist) {
  OpenedProject project(at(GetParam().projectFile), GetParam().frontEnd);
  ASSERT_EQ(project->initialize(), 0u);
  for (int type = 0; type < 3; ++type)
    for (const std::string& file : designLevelFiles(*project, static_cast<VARIANTFILE_TYPE>(type)))
      EXPECT_TRUE(isFile(at(file))) << file;
}

TEST_P(SampleProject, StaysAsItIsWhenTheTreeIsForgotten) {
  // Destroying the profiles would save their include lists.
  const auto before = snapshotOf(place);
  {
    OpenedProject project(at(GetParam().projectFile), GetParam().frontEnd);
    ASSERT_EQ(project->initialize(), 0u);
    treeOf(*project);
    EXPECT_EQ(snapshotOf(place), before);
  }
  // And the saved lists hold what the samples hold already.
  EXPECT_EQ(snapshotOf(place), before);
}

} // namespace
} // namespace tervix::testing
