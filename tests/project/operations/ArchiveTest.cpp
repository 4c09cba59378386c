#include "tests/project/operations/SampleProject.h"

// Copying every profile's files into an archive.

namespace tervix::testing {
namespace {

std::string folderError(const std::string& from, const std::string& to) {
  return "10123 Failed to copy contents of directory \"" + from + "\" to directory \"" + to +
         "\". Check disk space and access permissions.";
}
std::string createError(const std::string& folder) {
  return "10102 Failed to create directory \"" + folder +
         "\". Check write permissions on the parent directory.";
}

unsigned long archive(SampleProject& project, std::string folder) {
  return project->archiveProject(folder);
}

class Archive : public InEachLayout {};
TERVIX_IN_EACH_LAYOUT(Archive);

class ArchiveOfSimulations : public ::testing::TestWithParam<Layout> {
protected:
  // Below the disk's folder, and without an ending: the ".sim" file and folder of a profile.
  static std::string placeOf(const SampleProject& amp, std::size_t profile = 0) {
    return amp.folderOf(profile).substr(amp.disk().path().size() + 1);
  }
  static std::string archivedPlaceOf(const SampleProject& amp, std::size_t profile = 0) {
    return "D/amp-TervixFiles/" + amp.schematicOf(profile) + "/" + amp.nameOf(profile);
  }
};
INSTANTIATE_TEST_SUITE_P(EachLayout, ArchiveOfSimulations,
                         ::testing::Values(Layout::kDesignSimulation, Layout::kProjectSimulation),
                         layoutName);

TEST_P(Archive, IntoNoFolderFails) {
  SampleProject amp(GetParam());
  const auto files = amp.snapshot();
  EXPECT_EQ(archive(amp, ""), 1u);
  EXPECT_EQ(amp.snapshot(), files);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(ArchiveOfOthers, TouchesNothing) {
  for (const Layout layout : {Layout::kDesignOther, Layout::kProjectOther}) {
    SampleProject amp(layout);
    const auto files = amp.snapshot();
    std::string folder = withBackslashes(amp.path("D")) + "/";
    const std::string given = folder;
    EXPECT_EQ(amp->archiveProject(folder), 0u);
    EXPECT_EQ(folder, given);
    EXPECT_EQ(amp.snapshot(), files);
    EXPECT_EQ(lastError(), kOtherError);
  }
}

TEST_P(ArchiveOfSimulations, HoldsEveryProfilesFilesAndTakesNothingAway) {
  SampleProject amp(GetParam(), twoSchematics());
  Files expected(amp);
  for (std::size_t profile = 0; profile < 3; ++profile) {
    expected.copy(placeOf(amp, profile) + ".sim", archivedPlaceOf(amp, profile) + ".sim");
    expected.copy(placeOf(amp, profile) + "/", archivedPlaceOf(amp, profile) + "/");
  }
  const Lines places = placesOf(*amp);
  std::string folder = amp.path("D");
  EXPECT_EQ(amp->archiveProject(folder), 0u);
  EXPECT_EQ(folder, amp.path("D"));
  EXPECT_EQ(amp.snapshot(), expected);
  EXPECT_EQ(placesOf(*amp), places);
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_P(ArchiveOfSimulations, RewritesTheFoldersPath) {
  for (const auto& [given, left] : {std::pair<std::string, std::string>{"/D/", "/D"},
                                    {"\\D\\", "/D"},
                                    {"/D//", "/D/"},
                                    {"\\D\\E", "/D/E"}}) {
    SampleProject amp(GetParam());
    std::string folder = amp.disk().path() + given;
    EXPECT_EQ(amp->archiveProject(folder), 0u);
    EXPECT_EQ(folder, amp.disk().path() + left);
    EXPECT_TRUE(isFile(folder + "/amp-TervixFiles/" + amp.schematicOf() + "/tran.sim"));
    EXPECT_TRUE(isFolder(folder + "/amp-TervixFiles/" + amp.schematicOf() + "/tran"));
  }
}

TEST_P(ArchiveOfSimulations, OfAProjectWithoutProfilesMakesNothing) {
  ProjectPlan plan;
  plan.profiles.clear();
  SampleProject amp(GetParam(), plan);
  const auto files = amp.snapshot();
  EXPECT_EQ(archive(amp, amp.path("D")), 0u);
  EXPECT_EQ(amp.snapshot(), files);
}

TEST_P(ArchiveOfSimulations, IsNamedAfterTheProject) {
  SampleProject amp(GetParam());
  amp->setName(arg("other"));
  EXPECT_EQ(archive(amp, amp.path("D")), 0u);
  EXPECT_TRUE(isFile(amp.path("D/other-TervixFiles/" + amp.schematicOf() + "/tran.sim")));
}

// Made again it takes the newer files of the runs, but never another ".sim" file.
TEST_P(ArchiveOfSimulations, MadeAgainKeepsItsProfileFile) {
  SampleProject amp(GetParam());
  EXPECT_EQ(archive(amp, amp.path("D")), 0u);
  Files expected(amp);
  amp.disk().file(placeOf(amp) + ".sim", "changed");
  amp.disk().file(placeOf(amp) + "/tran.dat", "run again");
  expected[placeOf(amp) + ".sim"] = "changed";
  expected[placeOf(amp) + "/tran.dat"] = "run again";
  expected[archivedPlaceOf(amp) + "/tran.dat"] = "run again";
  EXPECT_EQ(archive(amp, amp.path("D")), 0u);
  EXPECT_EQ(amp.snapshot(), expected);
}

TEST(ArchiveInTheProjectsFolder, IsWhatIsThereAlready) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  const auto files = amp.snapshot();
  EXPECT_EQ(archive(amp, amp.path("P")), 0u);
  EXPECT_EQ(amp.snapshot(), files);
}

// ---- What cannot be archived ----

TEST_P(ArchiveOfSimulations, InsideAProfilesOwnFolderIsRefused) {
  SampleProject amp(GetParam(), twoSchematics());
  const auto files = amp.snapshot();
  std::filesystem::create_directory_symlink(amp.folderOf(2), amp.path("link"));
  const std::string folder = amp.folderOf(2);
  for (const std::string& inside : {folder, folder + "/D", folder + "/D/E", amp.path("link/D"),
                                    folder + "/../dc/D", folder + "/./D"}) {
    recordOtherError();
    EXPECT_EQ(archive(amp, inside + "/"), 10123u) << inside;
    EXPECT_EQ(lastError(), folderError(folder, inside));
    EXPECT_EQ(archive(amp, withBackslashes(inside)), 10123u) << inside;
    EXPECT_EQ(amp.snapshot(), files) << inside;
  }
}

TEST_P(ArchiveOfSimulations, BesideAProfilesFolderIsNotInsideIt) {
  SampleProject amp(GetParam());
  EXPECT_EQ(archive(amp, amp.folderOf() + "2"), 0u);
  EXPECT_TRUE(isFile(amp.folderOf() + "2/amp-TervixFiles/" + amp.schematicOf() + "/tran/tran.dat"));
}

TEST_P(ArchiveOfSimulations, OfAProfileThatWasNeverRunHasItsFileOnly) {
  SampleProject amp(GetParam());
  std::filesystem::remove_all(amp.folderOf());
  Files expected(amp);
  expected.copy(placeOf(amp) + ".sim", archivedPlaceOf(amp) + ".sim");
  expected[archivedPlaceOf(amp) + "/"] = "";
  EXPECT_EQ(archive(amp, amp.path("D")), 10123u);
  EXPECT_EQ(lastError(), folderError(amp.folderOf(), amp.path(archivedPlaceOf(amp))));
  EXPECT_EQ(amp.snapshot(), expected);
}

TEST(ArchiveThatFails, StopsThereAndKeepsWhatItHas) {
  SampleProject amp(Layout::kDesignSimulation, twoSchematics());
  std::filesystem::remove_all(amp.folderOf(1));
  EXPECT_EQ(archive(amp, amp.path("D")), 10123u);
  EXPECT_TRUE(isFile(amp.path("D/amp-TervixFiles/TOP/tran/tran.dat")));
  EXPECT_TRUE(isFile(amp.path("D/amp-TervixFiles/TOP/ac.sim")));
  EXPECT_FALSE(isFolder(amp.path("D/amp-TervixFiles/SUB")));
}

TEST_P(ArchiveOfSimulations, ThatAFileStandsInTheWayOfFails) {
  SampleProject amp(GetParam());
  amp.disk().file("D/amp-TervixFiles", "mine");
  const auto files = amp.snapshot();
  const std::string blocked = "D/amp-TervixFiles/" + amp.schematicOf();
  EXPECT_EQ(archive(amp, amp.path("D")), 10102u);
  EXPECT_EQ(lastError(), createError(amp.path(blocked)));
  EXPECT_EQ(archive(amp, amp.file()), 10102u);
  EXPECT_EQ(lastError(), createError(amp.file() + "/amp-TervixFiles"));
  EXPECT_EQ(amp.snapshot(), files);
}

TEST_P(ArchiveOfSimulations, WithAFolderInThePlaceOfAProfileFileFails) {
  SampleProject amp(GetParam());
  const std::string blocked = amp.disk().folder(archivedPlaceOf(amp) + ".sim");
  EXPECT_EQ(archive(amp, amp.path("D")), 10108u);
  EXPECT_EQ(lastError(), "10108 Failed to copy file \"" + amp.simPath() + "\" to file \"" +
                             blocked + "\". Check disk space and access permissions.");
  EXPECT_TRUE(isFolder(blocked));
}

TEST_P(ArchiveOfSimulations, AtAnEndlessPathFailsAndMakesNothing) {
  for (const std::size_t length : {260u, 5000u}) {
    SampleProject amp(GetParam());
    const auto files = amp.snapshot();
    std::string folder = amp.path("D");
    while (folder.size() < length)
      folder += "/" + std::string(20, 'x');
    EXPECT_EQ(archive(amp, folder), 10102u);
    const std::string whole =
        createError(folder + "/amp-TervixFiles/" + amp.schematicOf() + "/tran").substr(0, 6 + 1023);
    EXPECT_EQ(lastError(), whole);
    EXPECT_EQ(amp.snapshot(), files);
  }
}

TEST_P(ArchiveOfSimulations, CanBeNamedAsOneLikes) {
  for (const char* name : {"%s%n", "q\"uo\nte", "\xc3\xa4\xff", "..", "a.bak", " ", "\xc3\xa4"}) {
    if (!canBeAFileName(name) && std::string_view(name) != "..")
      continue;
    SampleProject amp(GetParam());
    const auto before = amp.snapshot();
    std::string folder = amp.path("E/" + std::string(name));
    amp.disk().folder("E");
    EXPECT_EQ(amp->archiveProject(folder), 0u) << name;
    EXPECT_EQ(contentOf(folder + "/amp-TervixFiles/" + amp.schematicOf() + "/tran.sim"),
              contentOf(amp.simPath()));
    const auto after = amp.snapshot();
    for (const auto& [file, content] : before) {
      const bool isStillThere = after.count(file) != 0 && after.at(file) == content;
      EXPECT_TRUE(isStillThere || file == "E/") << name << ": " << file;
    }
  }
}

} // namespace
} // namespace tervix::testing
