#include <filesystem>

#include <gtest/gtest.h>

#include "tests/project/LayoutTest.h"

// What a project knows of itself from the path that was opened and the folders around it.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

std::string pathOfProject(const CTervixProject& project) {
  return textOf(project, &CTervixNode::getPath);
}
std::string nameOfProject(const CTervixProject& project) {
  return textOf(project, &CTervixNode::getName);
}

// ---- From a project file ----

TEST(ProjectFileInformation, OfADesignFrontEndGoesByTheFilesFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.path("P/demo.tvp");
  {
    OpenedProject project(path, 2);
    EXPECT_EQ(nameOfProject(*project), "demo");
    EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), folder.path("P"));
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_OTHER);
  }
  folder.folder("P/demo-TervixFiles");
  OpenedProject project(path, 2);
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
}

TEST(ProjectFileInformation, TakesOnlyAFolderForTheFilesFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.path("P/demo.tvp");
  const std::string files = folder.file("P/demo-TervixFiles");
  EXPECT_EQ(projectTypeIn(*OpenedProject(path, 2)), PROJECT_TYPE_OTHER);
  fs::remove(files);
  fs::create_symlink(files, files);
  EXPECT_EQ(projectTypeIn(*OpenedProject(path, 2)), PROJECT_TYPE_OTHER);
  fs::remove(files);
  fs::create_symlink(folder.folder("other"), files);
  EXPECT_EQ(projectTypeIn(*OpenedProject(path, 2)), PROJECT_TYPE_SIMULATION);
}

TEST(ProjectFileInformation, OfTheOtherFrontEndGoesByTheFoldersName) {
  for (const auto& [folder, type] :
       {std::pair{"CFG_ANALOG", PROJECT_TYPE_OTHER}, std::pair{"cfg_analog", PROJECT_TYPE_OTHER},
        std::pair{"TVX_SIM_1", PROJECT_TYPE_SIMULATION},
        std::pair{"tvx_sim_1", PROJECT_TYPE_SIMULATION}, std::pair{"tvx_sim_2", PROJECT_TYPE_UNSET},
        std::pair{"cfg_analog.old", PROJECT_TYPE_UNSET}}) {
    OpenedProject project(std::string("/w/") + folder + "/demo.tvp", 1);
    EXPECT_EQ(projectTypeIn(*project), type) << folder;
    EXPECT_EQ(nameOfProject(*project), "demo");
    EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), std::string("/w/") + folder);
    EXPECT_EQ(frontEndIn(*project), 1);
  }
}

TEST(ProjectFileInformation, NeedsAFolderAboveTheOneOfTheOtherFrontEnd) {
  OpenedProject project("cfg_analog/demo.tvp", 1);
  EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), "cfg_analog");
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_UNSET);
}

TEST(ProjectFileInformation, WithoutAFolderKnowsOnlyPathAndFrontEnd) {
  OpenedProject project("demo.tvp", 2);
  EXPECT_EQ(pathOfProject(*project), "demo.tvp");
  EXPECT_EQ(frontEndIn(*project), 2);
  EXPECT_EQ(nameOfProject(*project), "");
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_UNSET);
}

TEST(ProjectFileInformation, WithoutAFolderButWithANameKnowsTheName) {
  OpenedProject project("demo.tvp", 2, false, "given");
  EXPECT_EQ(nameOfProject(*project), "given");
  EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), "");
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_UNSET);
}

TEST(ProjectFileInformation, UsesAGivenNameAlsoForTheFilesFolder) {
  const TemporaryFolder folder;
  folder.folder("P/given-TervixFiles");
  OpenedProject project(folder.path("P/demo.tvp"), 2, false, "given");
  EXPECT_EQ(nameOfProject(*project), "given");
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
  folder.folder("Q/demo-TervixFiles");
  OpenedProject other(folder.path("Q/demo.tvp"), 2, false, "given");
  EXPECT_EQ(projectTypeIn(*other), PROJECT_TYPE_OTHER);
}

TEST(ProjectFileInformation, TakesTheFilesNameForAnEmptyOne) {
  OpenedProject project("/w/demo.tvp", 2, false, "");
  EXPECT_EQ(nameOfProject(*project), "demo");
}

TEST(ProjectFileInformation, BelievesThatItIsASimulationProject) {
  for (int frontEnd : {1, 2}) {
    OpenedProject project("/nowhere/demo.tvp", frontEnd, true);
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
    EXPECT_EQ(nameOfProject(*project), "demo");
  }
  OpenedProject analog("/w/cfg_analog/demo.tvp", 1, true);
  EXPECT_EQ(projectTypeIn(*analog), PROJECT_TYPE_SIMULATION);
}

TEST(ProjectFileInformation, OfAnUnknownFrontEndIsPathAndFrontEnd) {
  OpenedProject project("/w/cfg_analog/demo.tvp", 3, true, "given");
  EXPECT_EQ(pathOfProject(*project), "/w/cfg_analog/demo.tvp");
  EXPECT_EQ(frontEndIn(*project), 3);
  EXPECT_EQ(nameOfProject(*project), "");
  EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), "");
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_UNSET);
}

TEST(ProjectFileInformation, RecordsNoError) {
  recordOtherError();
  for (const char* path : {"demo.tvp", "/w/demo.tvp", "/w/x/demo.tvp"})
    for (int frontEnd = 1; frontEnd < 4; ++frontEnd)
      OpenedProject project(path, frontEnd);
  EXPECT_EQ(lastError(), kOtherError);
}

// ---- From a profile file ----

class ProfileInformation : public ::testing::Test {
protected:
  TemporaryFolder folder;
};

TEST_F(ProfileInformation, OfAnotherProjectTakesTheProjectFileBesideIt) {
  folder.file("P/flt.tvp");
  const std::string path =
      folder.file("P/run.sim", simText("run", "C:\\far\\P-TOP-run.sim", "C:\\far\\flt.dsn",
                                       "C:\\far\\flt.tvp", "TOP", "", ""));
  OpenedProject project(path, 0);
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_OTHER);
  EXPECT_EQ(frontEndIn(*project), 2);
  EXPECT_EQ(pathOfProject(*project), folder.path("P/flt.tvp"));
  EXPECT_EQ(textOf(*project, &CTervixNode::getFolderPath), folder.path("P"));
  EXPECT_EQ(nameOfProject(*project), "flt");
  EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), folder.path("P/flt.tvp"));
}

TEST_F(ProfileInformation, TellsTheFrontEndByTheProfilesFileName) {
  for (const auto& [profileFile, frontEnd] :
       {std::pair{"RUN.sim", 1}, std::pair{"x/run.sim", 1}, std::pair{"P-TOP-run.sim", 2}}) {
    const std::string path =
        folder.file("P/run.sim", simText("run", profileFile, "a.dsn", "a.tvp", "TOP", "", ""));
    EXPECT_EQ(frontEndIn(*OpenedProject(path, 0)), frontEnd) << profileFile;
  }
}

TEST_F(ProfileInformation, WithoutTheProfilesNamesHasNoFrontEnd) {
  folder.file("P/a.tvp");
  for (const std::string& text : {simText("", "run.sim", "a.dsn", "a.tvp", "TOP", "", ""),
                                  simText("run", "", "a.dsn", "a.tvp", "TOP", "", "")}) {
    const std::string path = folder.file("P/run.sim", text);
    OpenedProject project(path, 0);
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_OTHER);
    EXPECT_EQ(frontEndIn(*project), 0);
    EXPECT_EQ(pathOfProject(*project), folder.path("P/a.tvp"));
    EXPECT_EQ(project->initialize(), 1u);
  }
}

TEST_F(ProfileInformation, HalfFilledInHasNoType) {
  folder.file("P/a.tvp");
  for (const std::string& text : {simText("run", "run.sim", "a.dsn", "a.tvp", "", "", ""),
                                  simText("run", "run.sim", "", "a.tvp", "", "", ""),
                                  simText("run", "run.sim", "", "", "TOP", "", "")}) {
    const std::string path = folder.file("P/run.sim", text);
    OpenedProject project(path, 0);
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_UNSET);
    EXPECT_EQ(frontEndIn(*project), 0);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(treeOf(*project), Lines());
  }
}

TEST_F(ProfileInformation, OfASimulationProjectFindsTheNearestFilesFolder) {
  const std::string text = simText("run", "run.sim", "", "", "", "", "");
  folder.file("P/amp.tvp");
  for (const char* place : {"P/amp-TervixFiles/run.sim", "P/amp-TervixFiles/TOP/run.sim",
                            "P/AMP-TERVIXFILES/TOP/run/run.sim"}) {
    OpenedProject project(folder.file(place, text), 0);
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
    EXPECT_EQ(frontEndIn(*project), 2) << place;
    if (std::string(place).find("amp-") != std::string::npos) {
      EXPECT_EQ(pathOfProject(*project), folder.path("P/amp.tvp")) << place;
    }
  }
  OpenedProject deep(folder.file("P/amp-TervixFiles/a/b/c/run.sim", text), 0);
  EXPECT_EQ(pathOfProject(*deep), "");
  EXPECT_EQ(frontEndIn(*deep), 0);
}

TEST_F(ProfileInformation, PrefersTheInnerFilesFolder) {
  folder.file("P/amp.tvp");
  folder.file("P/amp-TervixFiles/sub.tvp");
  OpenedProject project(folder.file("P/amp-TervixFiles/sub-TervixFiles/run.sim",
                                    simText("run", "run.sim", "", "", "", "", "")),
                        0);
  EXPECT_EQ(pathOfProject(*project), folder.path("P/amp-TervixFiles/sub.tvp"));
}

TEST_F(ProfileInformation, TakesNoFilesFolderWithoutAName) {
  folder.file("P/.tvp");
  OpenedProject project(
      folder.file("P/-TervixFiles/run.sim", simText("run", "run.sim", "", "", "", "", "")), 0);
  EXPECT_EQ(pathOfProject(*project), "");
}

TEST_F(ProfileInformation, InAProfilesFolderBelongsToTheFolderAbove) {
  const std::string text = simText("run", "run.sim", "", "", "", "", "");
  for (const char* place : {"tvx_sim_1/profiles", "TVX_SIM_1/PROFILES"}) {
    const TemporaryFolder own;
    const std::string tvp =
        own.file("amp/" + std::string(place).substr(0, std::string(place).find('/')) + "/amp.tvp");
    OpenedProject project(own.file(std::string("amp/") + place + "/run.sim", text), 0);
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
    EXPECT_EQ(frontEndIn(*project), 1) << place;
    EXPECT_EQ(pathOfProject(*project), tvp);
    EXPECT_EQ(nameOfProject(*project), "amp");
  }
}

TEST_F(ProfileInformation, InAProfilesFolderElsewhereHasNoFrontEnd) {
  OpenedProject project(
      folder.file("amp/other/profiles/run.sim", simText("run", "run.sim", "", "", "", "", "")), 0);
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(frontEndIn(*project), 0);
  EXPECT_EQ(project->initialize(), 0u);
}

TEST_F(ProfileInformation, OfAMissingOrInvalidFileComesFromTheFolders) {
  for (const auto& [place, type] :
       {std::pair{"amp/cfg_analog/", PROJECT_TYPE_OTHER},
        std::pair{"amp/cfg_analog/profiles/", PROJECT_TYPE_OTHER},
        std::pair{"amp/tvx_sim_1/", PROJECT_TYPE_SIMULATION},
        std::pair{"amp/tvx_sim_1/profiles/", PROJECT_TYPE_SIMULATION}}) {
    const TemporaryFolder own;
    const bool analog = type == PROJECT_TYPE_OTHER;
    const std::string tvp = own.file(analog ? "amp/cfg_analog/amp.tvp" : "amp/tvx_sim_1/amp.tvp");
    const std::string sim = own.path(std::string(place) + "run.sim");
    for (bool written : {false, true}) {
      if (written)
        writeFile(sim, "junk");
      OpenedProject project(sim, 0);
      EXPECT_EQ(pathOfProject(*project), tvp) << place;
      EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), tvp);
      EXPECT_EQ(nameOfProject(*project), "amp");
      EXPECT_EQ(frontEndIn(*project), 1);
      EXPECT_EQ(projectTypeIn(*project), type);
    }
  }
}

TEST_F(ProfileInformation, OfAMissingFileElsewhereIsNone) {
  folder.file("P/P.tvp");
  folder.file("P/amp.tvp");
  folder.folder("P/amp-TervixFiles/TOP");
  for (const char* place : {"P/run.sim", "P/profiles/run.sim", "P/amp-TervixFiles/TOP/run.sim",
                            "amp/cfg_analog/run.sim"}) {
    OpenedProject project(folder.path(place), 0);
    EXPECT_EQ(pathOfProject(*project), "") << place;
    EXPECT_EQ(frontEndIn(*project), 0);
    EXPECT_EQ(project->initialize(), 0u);
  }
}

TEST_F(ProfileInformation, TakesNoProjectFileThatIsNone) {
  folder.folder("P/amp.tvp");
  OpenedProject project(
      folder.file("P/amp-TervixFiles/TOP/run.sim", simText("run", "run.sim", "", "", "", "", "")),
      0);
  EXPECT_EQ(pathOfProject(*project), "");
  EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), "");
}

TEST_F(ProfileInformation, SurvivesPathsWithoutFolders) {
  for (const char* path : {".sim", "a.sim", "/.sim", "//.sim", "-TervixFiles/.sim", ".aap", "/.$ap",
                           "a.aap", "-.aap", "/-.aap", "cfg_analog/x.aap", "tvx_sim_1/x.sim"}) {
    OpenedProject project(path, 0);
    EXPECT_EQ(pathOfProject(*project), "") << path;
    EXPECT_EQ(project->initialize(), 0u) << path;
  }
}

// ---- From an analysis file ----

class AnalysisInformation : public ::testing::TestWithParam<const char*> {
protected:
  std::string at(const std::string& place) const { return folder.path(place) + GetParam(); }

  TemporaryFolder folder;
};
std::string nameOfEnding(const ::testing::TestParamInfo<const char*>& info) {
  return info.param[1] == '$' ? "Backup" : "File";
}
INSTANTIATE_TEST_SUITE_P(AndItsBackup, AnalysisInformation, ::testing::Values(".aap", ".$ap"),
                         nameOfEnding);

TEST_P(AnalysisInformation, InAFolderOfTheOtherFrontEndGoesByIt) {
  for (const auto& [place, type] : {std::pair{"amp/cfg_analog/", PROJECT_TYPE_OTHER},
                                    std::pair{"amp/TVX_SIM_1/", PROJECT_TYPE_SIMULATION}}) {
    const std::string tvp = folder.file(std::string(place) + "amp.tvp");
    OpenedProject project(at(std::string(place) + "x"), 0);
    EXPECT_EQ(pathOfProject(*project), tvp);
    EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), tvp);
    EXPECT_EQ(frontEndIn(*project), 1);
    EXPECT_EQ(projectTypeIn(*project), type);
  }
}

TEST_P(AnalysisInformation, InOrBelowAFilesFolderGoesByIt) {
  const std::string tvp = folder.file("P/amp.tvp");
  for (const char* place : {"P/amp-TervixFiles/x", "P/amp-TervixFiles/TOP/TOP"}) {
    OpenedProject project(at(place), 0);
    EXPECT_EQ(pathOfProject(*project), tvp) << place;
    EXPECT_EQ(nameOfProject(*project), "amp");
    EXPECT_EQ(frontEndIn(*project), 2);
    EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_SIMULATION);
  }
}

TEST_P(AnalysisInformation, ElsewhereGoesByItsName) {
  const std::string tvp = folder.file("P/amp.tvp");
  OpenedProject project(at("P/amp-TOP"), 0);
  EXPECT_EQ(pathOfProject(*project), tvp);
  EXPECT_EQ(frontEndIn(*project), 2);
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_OTHER);
}

TEST_P(AnalysisInformation, FindsTheDesignInANameOfManyDashes) {
  const std::string tvp = folder.file("P/my-amp.tvp");
  EXPECT_EQ(pathOfProject(*OpenedProject(at("P/my-amp-TOP-2"), 0)), tvp);
  EXPECT_EQ(pathOfProject(*OpenedProject(at("P/my-amp-TOP"), 0)), tvp);
}

TEST_P(AnalysisInformation, WithoutAProjectFileKeepsTypeAndFrontEnd) {
  OpenedProject project(at("P/amp-TOP"), 0);
  EXPECT_EQ(pathOfProject(*project), "");
  EXPECT_EQ(textOf(*project, &CTervixProject::getInitializationPath), "");
  EXPECT_EQ(frontEndIn(*project), 2);
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_OTHER);
  EXPECT_EQ(project->initialize(), 0u);
}

TEST_P(AnalysisInformation, OfANameWithoutDashIsNone) {
  folder.file("P/TOP.tvp");
  OpenedProject project(at("P/TOP"), 0);
  EXPECT_EQ(pathOfProject(*project), "");
  EXPECT_EQ(frontEndIn(*project), 0);
  EXPECT_EQ(projectTypeIn(*project), PROJECT_TYPE_UNSET);
}

} // namespace
} // namespace tervix::testing
