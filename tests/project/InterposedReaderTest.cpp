#include <list>
#include <stdexcept>

#include <gtest/gtest.h>
#include <tvx_wobj.h>

#include "tests/project/OpenedProject.h"

// A program that brings its own project-file reader, in place of the one that the library links.

namespace tervix::testing {
namespace {

enum class Ending { kSuccess, kFailure, kException, kOddException };

// What the reader below was asked, and how it is to answer.
struct Reader {
  Lines calls;
  std::string projectFile;
  bool allFlagsSet = true;
  std::list<std::string> designFiles = {"./amp.dsn"};
  std::list<std::string> profiles = {"./amp-TervixFiles/TOP/tran.sim"};
  std::string active = "TOP-tran";
  std::string failingCall;
  Ending ending = Ending::kSuccess;

  int answer(const std::string& call, const std::string& file, bool flag = true) {
    calls.push_back(call);
    projectFile = file;
    allFlagsSet = allFlagsSet && flag;
    if (call != failingCall)
      return 0;
    switch (ending) {
    case Ending::kException:
      throw std::runtime_error("no");
    case Ending::kOddException:
      throw 42; // NOLINT(hicpp-exception-baseclass)
    default:
      return -1;
    }
  }
};

Reader reader;

} // namespace
} // namespace tervix::testing

using tervix::testing::reader;

int readProjectFiles(const std::string& projectFile, const char* section,
                     std::list<std::string>& files, std::list<std::string>& second, bool flag) {
  files = reader.designFiles;
  second = {"second.dsn"};
  return reader.answer(std::string("files of ") + section, projectFile, flag);
}

int readProjectFiles(const std::string& projectFile, const char* section, const std::string& item,
                     std::list<std::string>& files, std::list<std::string>& second, bool flag) {
  files = {"first " + item, "other " + item};
  second = {"second " + item};
  return reader.answer(section + (": " + item), projectFile, flag);
}

int readSimProfiles(const std::string& projectFile, std::list<std::string>& profiles,
                    std::list<std::string>& second, std::string& activeProfile, bool flag) {
  profiles = reader.profiles;
  activeProfile = reader.active;
  second = {"second.sim"};
  return reader.answer("profiles", projectFile, flag);
}

int readItemFromProject(const std::string& projectFile, const char* section, const char* item,
                        std::string& value) {
  value = "interposed.out";
  return reader.answer(std::string("item ") + item + " of " + section, projectFile);
}

namespace tervix::testing {
namespace {

const Lines kAllCalls = {"files of Design Resources",
                         "profiles",
                         "item TERVIX_Output_File of Design Resources",
                         "Tervix Resources: Model Libraries",
                         "Tervix Resources: Stimulus Files",
                         "Tervix Resources: Include Files"};

class InterposedReader : public ::testing::Test {
protected:
  InterposedReader() {
    reader = Reader();
    // The text of the file is not for the library to read.
    writeFile(projectFile, "not TOML at all");
  }
  std::string unreadable() const {
    return "10109 Failed to read file \"" + projectFile + "\". Check the file syntax.";
  }

  TemporaryFolder folder;
  const std::string projectFile = writeProject(folder, Layout::kDesignSimulation);
};

TEST_F(InterposedReader, IsAskedForSectionsAndItemsByName) {
  OpenedProject project(projectFile, 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(reader.calls, kAllCalls);
  EXPECT_EQ(reader.projectFile, projectFile);
  EXPECT_TRUE(reader.allFlagsSet);
}

TEST_F(InterposedReader, GivesTheLibraryItsAnswers) {
  OpenedProject project(projectFile, 2);
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
  EXPECT_EQ(textOf(*project, &CTervixProject::getTervixOutputFile), "interposed.out");
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY),
            (Lines{"first Model Libraries", "other Model Libraries"}));
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_STIMULUS),
            (Lines{"first Stimulus Files", "other Stimulus Files"}));
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_INCLUDE),
            (Lines{"first Include Files", "other Include Files"}));
}

TEST_F(InterposedReader, IsAskedForResourcesOnlyByTheOtherFrontEnd) {
  for (Layout layout : {Layout::kProjectSimulation, Layout::kProjectOther}) {
    OpenedProject project(writeProject(folder, layout), 1);
    reader = Reader();
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(reader.calls, Lines(kAllCalls.begin() + 3, kAllCalls.end()));
  }
}

TEST_F(InterposedReader, IsAskedOnWhenThereIsNoDesign) {
  for (const std::list<std::string>& files :
       {std::list<std::string>{}, {"a.txt"}, {"gone.dsn"}, {""}}) {
    reader = Reader();
    reader.designFiles = files;
    OpenedProject project(projectFile, 2);
    EXPECT_EQ(project->initialize(), 0u);
    EXPECT_EQ(lastError(),
              "10124 Project file \"" + projectFile + "\" does not contain any valid design.");
    Lines expected = kAllCalls;
    expected.erase(expected.begin() + 1);
    EXPECT_EQ(reader.calls, expected);
    EXPECT_EQ(treeOf(*project), Lines());
  }
}

class FailingReader : public InterposedReader,
                      public ::testing::WithParamInterface<std::tuple<std::size_t, Ending>> {
protected:
  FailingReader() {
    reader.failingCall = kAllCalls[call];
    reader.ending = std::get<1>(GetParam());
  }

  const std::size_t call = std::get<0>(GetParam());
};

std::string failureName(const ::testing::TestParamInfo<std::tuple<std::size_t, Ending>>& info) {
  constexpr const char* endings[] = {"Success", "Failure", "Exception", "OddException"};
  return endings[static_cast<int>(std::get<1>(info.param))] +
         std::to_string(std::get<0>(info.param));
}
INSTANTIATE_TEST_SUITE_P(AtEachCall, FailingReader,
                         ::testing::Combine(::testing::Range(std::size_t{0}, std::size_t{6}),
                                            ::testing::Values(Ending::kFailure, Ending::kException,
                                                              Ending::kOddException)),
                         failureName);

TEST_P(FailingReader, IsReportedAndEndsTheReading) {
  OpenedProject project(projectFile, 2);
  EXPECT_EQ(project->initialize(), 10109u);
  EXPECT_EQ(lastError(), unreadable());
  EXPECT_EQ(reader.calls,
            Lines(kAllCalls.begin(), kAllCalls.begin() + static_cast<long>(call) + 1));
}

TEST_P(FailingReader, KeepsWhatWasReadBefore) {
  OpenedProject project(projectFile, 2);
  project->initialize();
  EXPECT_EQ(treeOf(*project), call == 0   ? Lines()
                              : call == 1 ? Lines{"TOP root"}
                                          : (Lines{"TOP root", "  tran TOP-tran active"}));
  EXPECT_EQ(textOf(*project, &CTervixProject::getTervixOutputFile),
            call > 2 ? "interposed.out" : "");
  // The three lists are taken only together.
  EXPECT_EQ(designLevelFiles(*project, VARIANTFILE_TYPE_LIBRARY), Lines());
}

TEST_P(FailingReader, IsAskedAgainTheNextTime) {
  OpenedProject project(projectFile, 2);
  project->initialize();
  reader = Reader();
  EXPECT_EQ(project->initialize(), 0u);
  EXPECT_EQ(treeOf(*project), (Lines{"TOP root", "  tran TOP-tran active"}));
}

TEST_P(FailingReader, OfResourcesIsReportedWithoutADesignToo) {
  reader.designFiles.clear();
  OpenedProject project(projectFile, 2);
  // Without a design the profiles are not asked for.
  EXPECT_EQ(project->initialize(), call == 1 ? 0u : 10109u);
}

} // namespace
} // namespace tervix::testing
