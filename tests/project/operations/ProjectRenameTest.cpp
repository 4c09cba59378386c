#include "tests/project/operations/SampleProject.h"

// Carrying every profile's files from one project file's place to another's.

namespace tervix::testing {
namespace {

std::string folderError(const std::string& from, const std::string& to) {
  return "10123 Failed to copy contents of directory \"" + from + "\" to directory \"" + to +
         "\". Check disk space and access permissions.";
}

// Renames to a path below the disk's folder.
unsigned long rename(SampleProject& project, const std::string& name) {
  std::string oldFile = project.file();
  std::string newFile = project.path(name);
  return project->rename(oldFile, newFile);
}

class ProjectRename : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(ProjectRename);

TEST(ProjectRenameOfFrontEndTwo, CarriesTheFilesFolderToTheNewProjectFile) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  for (const char* target : {"Q/pre.tvp", "P/pre.tvp", "P/AMP.tvp"}) {
    Files expected(amp);
    const std::string base = std::string(target).substr(0, 5) + "-TervixFiles/";
    expected.copy("P/amp-TervixFiles/", base);
    const Lines places = placesOf(*amp);
    EXPECT_EQ(rename(amp, target), 0u);
    EXPECT_EQ(amp.snapshot(), expected);
    EXPECT_EQ(placesOf(*amp), places);
  }
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectRenameOfFrontEndTwo, CarriesTheFilesBesideIntoTheNewFolderUnderTheirNames) {
  SampleProject amp(Layout::kDesignOther, twoSchematics());
  Files expected(amp);
  expected.copy("P/amp-", "Q/amp-");
  for (const char* profile : {"amp-TOP-tran", "amp-TOP-ac", "amp-SUB-dc"})
    expected.rewriteSim(std::string("Q/") + profile + ".sim", profile, "amp");
  const Lines places = placesOf(*amp);
  EXPECT_EQ(rename(amp, "Q/pre.tvp"), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
  EXPECT_EQ(placesOf(*amp), places);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectRenameOfFrontEndTwo, InOneFolderRewritesTheProfilesInTheirPlace) {
  SampleProject amp(Layout::kDesignOther);
  Files expected(amp);
  expected.rewriteSim("P/amp-TOP-tran.sim", "amp-TOP-tran", "pre");
  // The name that the references take is the one of the project in the tree.
  amp->setName(arg("pre"));
  EXPECT_EQ(rename(amp, "P/pre.tvp"), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
}

TEST(ProjectRenameOfFrontEndTwo, NamesTheFilesAfterTheDesign) {
  SampleProject amp(Layout::kDesignOther);
  amp->setDesignName(arg("other"));
  amp.disk().file("P/other-TOP-tran.dat", "data");
  Files expected(amp);
  expected["Q/other-TOP-tran.dat"] = "data";
  amp.disk().folder("Q");
  EXPECT_EQ(rename(amp, "Q/pre.tvp"), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
}

// With front end 1 the files are named after the profile alone, so that none is found.
TEST(ProjectRenameOfFrontEndOne, FindsNoFilesBesideToCarry) {
  SampleProject amp(Layout::kProjectOther);
  const auto files = amp.snapshot();
  EXPECT_EQ(rename(amp, "Q/pre.tvp"), 0u);
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectRenameOfFrontEndOne, FindsNoFilesFolderToCarry) {
  SampleProject amp(Layout::kProjectSimulation);
  const auto before = amp.snapshot();
  EXPECT_EQ(rename(amp, "Q/pre.tvp"), 10123u);
  EXPECT_EQ(lastError(), folderError(amp.folder() + "/amp-TervixFiles/amp/tran",
                                     amp.path("Q/pre-TervixFiles/amp/tran")));
  const auto after = amp.snapshot();
  for (const auto& [file, content] : before)
    EXPECT_EQ(after.count(file) != 0 ? after.at(file) : "(gone)", content);
}

TEST_P(ProjectRename, OfAProjectWithoutProfilesMakesNothing) {
  ProjectPlan plan;
  plan.profiles.clear();
  SampleProject amp(GetParam(), plan);
  const auto files = amp.snapshot();
  EXPECT_EQ(rename(amp, "Q/pre.tvp"), 0u);
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectRenameOfFrontEndTwo, LeavesBackslashesInItsPaths) {
  for (const Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    SampleProject amp(layout);
    std::string oldFile = withBackslashes(amp.file());
    std::string newFile = withBackslashes(amp.path("Q/pre.tvp"));
    EXPECT_EQ(amp->rename(oldFile, newFile), 0u);
    EXPECT_EQ(oldFile, withBackslashes(amp.file()));
    EXPECT_EQ(newFile, withBackslashes(amp.path("Q/pre.tvp")));
    EXPECT_TRUE(isFile(amp.path(amp.isSimulationProject() ? "Q/pre-TervixFiles/TOP/tran/tran.dat"
                                                          : "Q/amp-TOP-tran.dat")));
  }
}

TEST(ProjectRenameWithoutAFolder, IsNoneWhereTheFilesLieBesideTheProject) {
  SampleProject amp(Layout::kDesignOther);
  const auto files = amp.snapshot();
  for (const char* odd : {"", "pre.tvp", "pre", "%s"}) {
    EXPECT_EQ(amp->rename(arg(odd), arg(amp.path("Q/pre.tvp"))), 1u) << odd;
    EXPECT_EQ(amp->rename(arg(std::string(amp.file())), arg(odd)), 1u) << odd;
  }
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ProjectRenameOfAShortPath, CutsItToNothing) {
  SampleProject amp(Layout::kDesignSimulation);
  const auto files = amp.snapshot();
  for (const auto& [oldFile, newFile] :
       {std::pair<const char*, const char*>{"", ""}, {"abc", "x"}, {".tvp", ""}}) {
    EXPECT_EQ(amp->rename(arg(oldFile), arg(newFile)), 10123u) << oldFile;
    EXPECT_EQ(lastError(), folderError("-TervixFiles/TOP/tran", "-TervixFiles/TOP/tran"));
  }
  EXPECT_FALSE(isFolder("-TervixFiles"));
  EXPECT_EQ(amp.snapshot(), files);
}

TEST(ProjectRenameOfAnyEnding, CutsFourCharactersWithoutLooking) {
  SampleProject amp(Layout::kDesignSimulation);
  EXPECT_EQ(amp->rename(arg(amp.path("P/ampXYZ9")), arg(amp.path("Q/pre.xyz"))), 0u);
  EXPECT_TRUE(isFile(amp.path("Q/pre-TervixFiles/TOP/tran.sim")));
}

TEST(ProjectRenameToItself, ChangesNothingInASimulationProject) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  const auto files = amp.snapshot();
  std::string file = amp.file();
  EXPECT_EQ(amp->rename(file, file), 0u);
  EXPECT_EQ(file, amp.file());
  EXPECT_EQ(amp.snapshot(), files);
}

TEST(ProjectRenameToItself, RewritesTheProfilesBesideTheProject) {
  SampleProject amp(Layout::kDesignOther);
  Files expected(amp);
  expected.rewriteSim("P/amp-TOP-tran.sim", "amp-TOP-tran", "amp");
  std::string file = amp.file();
  EXPECT_EQ(amp->rename(file, file), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
}

TEST(ProjectRenameThatFails, StopsThereAndKeepsWhatItCarried) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  std::filesystem::remove_all(amp.folderOf(1));
  EXPECT_EQ(rename(amp, "Q/pre.tvp"), 10123u);
  EXPECT_EQ(lastError(), folderError(amp.folderOf(1), amp.path("Q/pre-TervixFiles/TOP/ac")));
  EXPECT_TRUE(isFile(amp.path("Q/pre-TervixFiles/TOP/tran/tran.dat")));
  EXPECT_TRUE(isFile(amp.path("Q/pre-TervixFiles/TOP/ac.sim")));
  EXPECT_FALSE(isFolder(amp.path("Q/pre-TervixFiles/SUB")));
}

TEST(ProjectRenameThatFails, TellsTheFirstFileThatCouldNotBeCopied) {
  for (const Layout layout : {Layout::kDesignSimulation, Layout::kDesignOther}) {
    SampleProject amp(layout, twoSchematics());
    const auto before = amp.snapshot();
    amp.disk().file("Q", "a file");
    EXPECT_EQ(rename(amp, "Q/pre.tvp"), 10108u);
    EXPECT_EQ(lastError(),
              "10108 Failed to copy file \"" + amp.simPath() + "\" to file \"" +
                  amp.path(layout == Layout::kDesignSimulation ? "Q/pre-TervixFiles/TOP/tran.sim"
                                                               : "Q/amp-TOP-tran.sim") +
                  "\". Check disk space and access permissions.");
    auto expected = before;
    expected["Q"] = "a file";
    EXPECT_EQ(amp.snapshot(), expected);
  }
}

TEST_P(ProjectRename, ToAnOddPathLosesNothing) {
  for (const std::string& name :
       {std::string("%s%n.tvp"), std::string("q\"uo\nte.tvp"), std::string("\xc3\xa4\xff.tvp"),
        std::string("P/../up.tvp"), std::string("P/amp-TervixFiles/TOP/tran/in.tvp"),
        std::string("amp/tvx_sim_1/profiles/tran/in.tvp"), std::string(300, 'x') + ".tvp",
        std::string(5000, 'y') + "/z.tvp"}) {
    SampleProject amp(GetParam(), twoSchematics());
    const auto before = amp.snapshot();
    rename(amp, name);
    const auto after = amp.snapshot();
    for (const auto& [file, content] : before) {
      const auto found = after.find(file);
      const bool isRewritten = GetParam() == Layout::kDesignOther && found != after.end();
      EXPECT_TRUE(isRewritten || (found != after.end() && found->second == content))
          << name << ": " << file;
    }
  }
}

} // namespace
} // namespace tervix::testing
