
#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "project/ProjectReaders.h"
#include "tests/project/OpenedProject.h"
#include "tests/support/System.h"

// What is read from project file, design file and folders.

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

std::string invalidFile(const std::string& path) {
  return "10109 Failed to read file \"" + path + "\". Check the file syntax.";
}
std::string noDesign(const std::string& path) {
  return "10124 Project file \"" + path + "\" does not contain any valid design.";
}

// Gives a test another current folder.
class CurrentFolder {
public:
  explicit CurrentFolder(const std::string& path) : before_(fs::current_path()) {
    fs::current_path(path);
  }
  ~CurrentFolder() { fs::current_path(before_); }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
  fs::path before_;
};

class DesignOfProject : public ::testing::Test {
protected:
  void list(const std::string& files) {
    projectFile = folder.file("P/amp.tvp", "[\"Design Resources\"]\nFiles = [" + files + "]\n");
  }
  unsigned long read(FRONTEND_ID frontEnd = FRONTEND_ID_DESIGN_FILE) {
    return readDesignFromProject(design, projectFile, projectFolder, frontEnd);
  }
  void expectNoDesign() {
    recordOtherError();
    EXPECT_EQ(read(), 10124u);
    EXPECT_EQ(lastError(), noDesign(projectFile));
    EXPECT_EQ(design.path + design.folder + design.name, "old pathold folderold name");
  }

  TemporaryFolder folder;
  std::string projectFolder = folder.folder("P");
  std::string projectFile = folder.path("P/amp.tvp");
  DesignPlace design = {"old path", "old folder", "old name"};
};

TEST_F(DesignOfProject, IsTheFirstListedDesignFile) {
  folder.file("P/one.dsn");
  folder.file("P/two.dsn");
  list("'notes.txt', 'one.dsn.txt', 'one.dsn', 'two.dsn'");
  EXPECT_EQ(read(), 0u);
  EXPECT_EQ(design.path, folder.path("P/one.dsn"));
  EXPECT_EQ(design.folder, folder.path("P"));
  EXPECT_EQ(design.name, "one");
}

TEST_F(DesignOfProject, EndsInAnyCase) {
  folder.file("P/AMP.DSN");
  list("'AMP.DSN'");
  EXPECT_EQ(read(), 0u);
  EXPECT_EQ(design.name, "AMP");
}

TEST_F(DesignOfProject, LiesWhereARelativePathLeads) {
  folder.file("D/amp.dsn");
  folder.file("P/x/amp.dsn");
  folder.file("P/long/amp.dsn");
  for (const auto& [listed, expected] :
       {std::pair{"'../D/amp.dsn'", "D/amp.dsn"}, std::pair{"'..\\D\\amp.dsn'", "D/amp.dsn"},
        std::pair{"'./x/amp.dsn'", "P/./x/amp.dsn"}, std::pair{"'.\\x\\amp.dsn'", "P/x/amp.dsn"},
        std::pair{"'x/amp.dsn'", "P/x/amp.dsn"}, std::pair{"'long\\amp.dsn'", "P/long/amp.dsn"}}) {
    list(listed);
    EXPECT_EQ(read(), 0u) << listed;
    EXPECT_TRUE(fs::equivalent(design.path, folder.path(expected))) << listed;
    EXPECT_EQ(design.name, "amp");
  }
}

TEST_F(DesignOfProject, StandsAsItIsWithAnAbsolutePath) {
  const std::string file = folder.file("elsewhere/amp.dsn");
  list("'" + file + "'");
  EXPECT_EQ(read(), 0u);
  EXPECT_EQ(design.path, file);
  EXPECT_EQ(design.folder, folder.path("elsewhere"));
}

TEST_F(DesignOfProject, InAFolderOfTwoLettersIsFoundInTheProject) {
  folder.file("P/ab/x.dsn");
  list("'ab/x.dsn'");
  EXPECT_EQ(read(), 0u);
  EXPECT_EQ(design.path, folder.path("P/ab/x.dsn"));
  list("'ab\\x.dsn'");
  EXPECT_EQ(read(), 0u);
  EXPECT_EQ(design.path, folder.path("P/ab/x.dsn"));
}

TEST_F(DesignOfProject, InAFolderOfTwoLettersIsTriedAsItStandsFirst) {
  folder.file("P/ab/x.dsn");
  folder.file("here/ab/x.dsn");
  list("'ab/x.dsn'");
  const CurrentFolder here(folder.path("here"));
  EXPECT_EQ(read(), 0u);
  EXPECT_EQ(design.path, "ab/x.dsn");
  EXPECT_EQ(design.folder, "ab");
  EXPECT_EQ(design.name, "x");
}

TEST_F(DesignOfProject, WithADriveIsNotLookedForInTheProject) {
  folder.file("P/C:/x.dsn");
  list("'C:/x.dsn'");
  const CurrentFolder here(folder.path());
  expectNoDesign();
}

TEST_F(DesignOfProject, IsNoneWhenNothingIsListed) {
  list("");
  expectNoDesign();
}

TEST_F(DesignOfProject, IsNoneWhenNoDesignFileIsListed) {
  folder.file("P/a.txt");
  list("'a.txt', 'dsn', ''");
  expectNoDesign();
}

TEST_F(DesignOfProject, IsNoneWhenTheFirstDesignFileIsMissing) {
  folder.file("P/two.dsn");
  list("'one.dsn', 'two.dsn'");
  expectNoDesign();
}

TEST_F(DesignOfProject, IsNoneWhenItIsNoFile) {
  list("'amp.dsn'");
  const std::string path = folder.folder("P/amp.dsn");
  expectNoDesign();
  fs::remove(path);
  ASSERT_TRUE(makePipe(path));
  expectNoDesign();
  fs::remove(path);
  fs::create_symlink(path, path);
  expectNoDesign();
}

TEST_F(DesignOfProject, IsUnreadableWithAMissingOrMalformedProjectFile) {
  EXPECT_EQ(read(), 10109u);
  EXPECT_EQ(lastError(), invalidFile(projectFile));
  folder.file("P/amp.tvp", "[\"Design Resources\"\n");
  recordOtherError();
  EXPECT_EQ(read(), 10109u);
  EXPECT_EQ(lastError(), invalidFile(projectFile));
  EXPECT_EQ(design.name, "old name");
}

TEST_F(DesignOfProject, OpenedByItselfIsNamedAfterTheFolderAbove) {
  projectFolder = "/w/flt/cfg_analog";
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE), 0u);
  EXPECT_EQ(design.name, "flt");
  EXPECT_EQ(design.path, "/w/flt/cfg_analog/flt");
  EXPECT_EQ(design.folder, "/w/flt/cfg_analog");
}

TEST_F(DesignOfProject, HasNoNameWithoutAFolderAbove) {
  for (const char* shortPath : {"", "cfg_analog", "flt/cfg_analog"}) {
    projectFolder = shortPath;
    EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE), 1u) << shortPath;
  }
  EXPECT_EQ(design.name, "old name");
}

TEST_F(DesignOfProject, IsNotKnownToOtherFrontEnds) {
  list("'amp.dsn'");
  recordOtherError();
  EXPECT_EQ(read(FRONTEND_ID_UNSET), 1u);
  EXPECT_EQ(read(static_cast<FRONTEND_ID>(3)), 1u);
  EXPECT_EQ(lastError(), kOtherError);
}

class SchematicsOfDesign : public ::testing::Test {
protected:
  unsigned long read(FRONTEND_ID frontEnd) {
    return readDesignSchematics(names, root, path, "amp", frontEnd);
  }

  TemporaryFolder folder;
  std::string path = folder.path("amp.dsn");
  Lines names = {"old"};
  std::string root;
};

TEST_F(SchematicsOfDesign, AreListedWithTheirRoot) {
  folder.file("amp.dsn", "[Design]\nSchematics = ['TOP', 'SUB']\nRoot = 'SUB'\n");
  EXPECT_EQ(read(FRONTEND_ID_DESIGN_FILE), 0u);
  EXPECT_EQ(names, (Lines{"TOP", "SUB"}));
  EXPECT_EQ(root, "SUB");
}

TEST_F(SchematicsOfDesign, AreTheDesignItselfForTheOtherFrontEnd) {
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE), 0u);
  EXPECT_EQ(names, Lines{"amp"});
  EXPECT_EQ(root, "");
}

TEST_F(SchematicsOfDesign, AreNoneForUnknownFrontEnds) {
  EXPECT_EQ(read(FRONTEND_ID_UNSET), 0u);
  EXPECT_EQ(names, Lines());
  EXPECT_EQ(read(static_cast<FRONTEND_ID>(3)), 0u);
}

TEST_F(SchematicsOfDesign, CannotBeReadFromAMissingOrMalformedFile) {
  for (const char* text :
       {"", "[Design", "Design = 3", "[Design]\nSchematics = 'TOP'\n", "[Design]\nRoot = [1]\n"}) {
    if (*text != '\0')
      folder.file("amp.dsn", text);
    recordOtherError();
    EXPECT_EQ(read(FRONTEND_ID_DESIGN_FILE), 10110u) << text;
    EXPECT_EQ(lastError(), "10110 Failed to read the design file \"" + path + "\".");
    EXPECT_EQ(names, Lines());
  }
}

class ProfilesOfProject : public ::testing::Test {
protected:
  unsigned long read(FRONTEND_ID frontEnd, PROJECT_TYPE type) {
    files.clear();
    const unsigned long status =
        readProfileFiles([&](const SimFile& file) { files.push_back(file.path()); }, active,
                         folder.path("P/amp.tvp"), folder.path("P"), folders, frontEnd, type);
    std::sort(files.begin(), files.end());
    return status;
  }
  void registerProfiles(const std::string& list) {
    folder.file("P/amp.tvp",
                "[\"Simulation Profiles\"]\nFiles = [" + list + "]\nActive = 'TOP-tran'\n");
  }

  TemporaryFolder folder;
  Lines folders;
  Lines files = {"old"};
  std::string active;
};

TEST_F(ProfilesOfProject, AreTheRegisteredOnesThatExist) {
  folder.file("P/a.sim");
  folder.file("D/b.sim");
  folder.file("P/ab/c.sim");
  folder.folder("P/folder.sim");
  registerProfiles("'./a.sim', '..\\D\\b.sim', 'ab/c.sim', 'folder.sim', 'gone.sim', '" +
                   folder.path("P/a.sim") + "'");
  for (PROJECT_TYPE type : {PROJECT_TYPE_OTHER, PROJECT_TYPE_SIMULATION}) {
    EXPECT_EQ(read(FRONTEND_ID_DESIGN_FILE, type), 0u);
    EXPECT_EQ(files, (Lines{folder.path("D/b.sim"), folder.path("P/a.sim"), folder.path("P/a.sim"),
                            folder.path("P/ab/c.sim")}));
    EXPECT_EQ(active, "TOP-tran");
  }
}

TEST_F(ProfilesOfProject, AreUnreadableWithAMalformedProjectFile) {
  folder.file("P/amp.tvp", "[\"Simulation Profiles\"]\nFiles = 3\n");
  EXPECT_EQ(read(FRONTEND_ID_DESIGN_FILE, PROJECT_TYPE_OTHER), 10109u);
  EXPECT_EQ(lastError(), invalidFile(folder.path("P/amp.tvp")));
  EXPECT_EQ(files, Lines());
}

TEST_F(ProfilesOfProject, AreThoseInTheSchematicFolders) {
  for (const char* name : {"x/a.sim", "x/B.SIM", "x/.sim", "x/c.sim.bak", "x/c.txt", "y/d.sim"})
    folder.file(name);
  folder.folder("x/folder.sim");
  const std::string loop = folder.path("x/loop.sim");
  fs::create_symlink(loop, loop);
  folders = {folder.path("x"), folder.path("missing"), folder.path("x/c.txt"), folder.path("y")};
  recordOtherError();
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_OTHER), 0u);
  EXPECT_EQ(files, (Lines{folder.path("x/B.SIM"), folder.path("x/a.sim"), folder.path("y/d.sim")}));
  EXPECT_EQ(active, "");
  EXPECT_EQ(lastError(), kOtherError);
}

TEST_F(ProfilesOfProject, AreThoseInTheProfilesFolder) {
  folder.file("P/profiles/a.sim");
  folder.file("P/profiles/b.Sim");
  folder.file("P/profiles/sub/c.sim");
  folder.file("P/d.sim");
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION), 0u);
  EXPECT_EQ(files, (Lines{folder.path("P/profiles/a.sim"), folder.path("P/profiles/b.Sim")}));
}

TEST_F(ProfilesOfProject, NeedAProfilesFolder) {
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION), 10122u);
  EXPECT_EQ(lastError(), "10122 Profiles directory does not exist.");
  EXPECT_EQ(files, Lines());
}

TEST_F(ProfilesOfProject, NeedAProfilesFolderThatCanBeOpened) {
  const std::string path = folder.file("P/profiles");
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION), 10103u);
  EXPECT_EQ(lastError(),
            "10103 Failed to open directory \"" + path + "\". Check its existence on the disk.");
  fs::remove(path);
  ASSERT_TRUE(makePipe(path));
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION), 10103u);
}

TEST_F(ProfilesOfProject, NeedMoreThanALinkToNothing) {
  folder.folder("P");
  fs::create_symlink("profiles", folder.path("P/profiles"));
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_SIMULATION), 10122u);
}

TEST_F(ProfilesOfProject, AreNotKnownToOtherFrontEndsAndTypes) {
  recordOtherError();
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, PROJECT_TYPE_UNSET), 1u);
  EXPECT_EQ(read(FRONTEND_ID_PROJECT_FILE, static_cast<PROJECT_TYPE>(3)), 1u);
  EXPECT_EQ(read(FRONTEND_ID_UNSET, PROJECT_TYPE_OTHER), 1u);
  EXPECT_EQ(read(static_cast<FRONTEND_ID>(3), PROJECT_TYPE_SIMULATION), 1u);
  EXPECT_EQ(files, Lines());
  EXPECT_EQ(lastError(), kOtherError);
}

TEST(SimFileNames, EndInAnyCaseAndHaveSomethingInFront) {
  for (const char* name : {"a.sim", "a.SIM", "a.b.Sim", "..sim", "%.sim"})
    EXPECT_TRUE(isSimFileName(name)) << name;
  for (const char* name : {"", ".sim", "sim", "a.sim.bak", "a.simx", "asim", "a.aap"})
    EXPECT_FALSE(isSimFileName(name)) << name;
}

class ResourcesOfProject : public ::testing::Test {
protected:
  void write(const std::string& text) { path = folder.file("amp.tvp", text); }

  TemporaryFolder folder;
  std::string path = folder.path("amp.tvp");
  std::string outputFile = "old";
  DesignResources resources = {{"old"}, {"old"}, {"old"}};
};

TEST_F(ResourcesOfProject, AreTheThreeListsAndTheOutputFile) {
  write(
      "[\"Design Resources\"]\nTERVIX_Output_File = 'all.out'\n[\"Tervix Resources\"]\n"
      "\"Model Libraries\" = ['a', 'b']\n\"Stimulus Files\" = ['c']\n\"Include Files\" = ['d']\n");
  EXPECT_EQ(readProjectResources(resources, path), 0u);
  EXPECT_EQ(resources.libraries, (Lines{"a", "b"}));
  EXPECT_EQ(resources.stimuli, Lines{"c"});
  EXPECT_EQ(resources.includes, Lines{"d"});
  EXPECT_EQ(readOutputFileFromProject(outputFile, path, FRONTEND_ID_DESIGN_FILE), 0u);
  EXPECT_EQ(outputFile, "all.out");
}

TEST_F(ResourcesOfProject, AreEmptyWhenTheFileHasNone) {
  write("");
  EXPECT_EQ(readProjectResources(resources, path), 0u);
  EXPECT_EQ(resources.libraries, Lines());
  EXPECT_EQ(resources.stimuli, Lines());
  EXPECT_EQ(resources.includes, Lines());
  EXPECT_EQ(readOutputFileFromProject(outputFile, path, FRONTEND_ID_DESIGN_FILE), 0u);
  EXPECT_EQ(outputFile, "");
}

TEST_F(ResourcesOfProject, StopAtTheListThatCannotBeRead) {
  write("[\"Tervix Resources\"]\n\"Model Libraries\" = ['a']\n\"Stimulus Files\" = 3\n"
        "\"Include Files\" = ['d']\n");
  EXPECT_EQ(readProjectResources(resources, path), 10109u);
  EXPECT_EQ(lastError(), invalidFile(path));
  EXPECT_EQ(resources.libraries, Lines{"a"});
  EXPECT_EQ(resources.stimuli, Lines());
  EXPECT_EQ(resources.includes, Lines());
}

TEST_F(ResourcesOfProject, HaveAnOutputFileForOneFrontEndOnly) {
  recordOtherError();
  EXPECT_EQ(readOutputFileFromProject(outputFile, path, FRONTEND_ID_PROJECT_FILE), 0u);
  EXPECT_EQ(readOutputFileFromProject(outputFile, path, FRONTEND_ID_UNSET), 0u);
  EXPECT_EQ(lastError(), kOtherError);
  EXPECT_EQ(readOutputFileFromProject(outputFile, path, FRONTEND_ID_DESIGN_FILE), 10109u);
  EXPECT_EQ(lastError(), invalidFile(path));
  EXPECT_EQ(outputFile, "old");
}

} // namespace
} // namespace tervix::testing
