#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ChangedSample.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// An archive that cannot be made leaves nothing behind, and the project as it was.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

class FailingArchive : public ::testing::TestWithParam<int> {
protected:
  const Sample& sample() const { return allSamples().at(static_cast<std::size_t>(GetParam())); }
  std::string projectFolder() const { return fs::path(copy_.project()).parent_path().string(); }

  // Everything that is there, the project and all around it.
  using Everything = std::map<std::string, std::string>;
  Everything everything() const {
    Everything entries = snapshotOf(folder_);
    const auto below = snapshotOf(target_.path());
    entries.insert(below.begin(), below.end());
    return entries;
  }

  void expectRefused(const std::string& folder, const std::string& reason) const {
    const Everything before = everything();
    for (const char* option : {"--json", "--dry-run"}) {
      const ToolRun run = runTool({"archive", copy_.project(), folder, option});
      EXPECT_EQ(run.status, 1) << folder;
      EXPECT_EQ(run.output, "");
      EXPECT_TRUE(contains(run.errors, reason)) << run.errors;
    }
    EXPECT_EQ(everything(), before);
  }

  // A failure in the middle of the work.
  void expectTakenBack(const std::string& folder, const RunOptions& options = RunOptions()) const {
    const Everything before = everything();
    const ToolRun run = runTool({"archive", copy_.project(), folder}, options);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(contains(run.errors, "\nThe project is as it was.\n")) << run.errors;
    EXPECT_EQ(everything(), before);
  }

  SampleCopy copy_{sample(), "work/sample"};
  std::string folder_ = fs::path(copy_.folder()).parent_path().parent_path().string();
  TemporaryFolder target_;
};

INSTANTIATE_TEST_SUITE_P(All, FailingArchive, ::testing::Range(0, 4), layoutName);

TEST_P(FailingArchive, IsRefusedInTheProjectsFolder) {
  const std::string simFolder =
      fs::path(copy_.path(sample().others.front())).parent_path().generic_string();
  const auto inside = "lies in the project's own folder";
  expectRefused(projectFolder(), inside);
  expectRefused(projectFolder() + "/new", inside);
  expectRefused(simFolder + "/tran/new/one", inside);
  expectRefused(projectFolder() + "/../" + fs::path(projectFolder()).filename().string() + "/new",
                inside);
}

TEST_P(FailingArchive, IsRefusedInTheProjectsFolderReachedByALink) {
  fs::create_directory_symlink(projectFolder(), target_.path("link"));
  expectRefused(target_.path("link/new"), "lies in the project's own folder");
  expectRefused(target_.path("link\\new"), "lies in the project's own folder");
}

TEST_P(FailingArchive, IsRefusedInAFolderThatALinkMakesPartOfTheProject) {
  const std::string part =
      GetParam() == 0 ? copy_.path("amp-TervixFiles/TOP/link") : projectFolder() + "/link";
  fs::create_directory_symlink(target_.path(), part);
  if (GetParam() == 1)
    return; // where only names tell the files, no folder goes along
  expectRefused(target_.path("new"), "which it is to hold");
}

TEST_P(FailingArchive, IsRefusedWhereItWouldHoldTheProject) {
  expectRefused(folder_, "it holds the project");
  expectRefused(folder_ + "/work", "it holds the project");
  expectRefused(fs::path(folder_).root_path().generic_string(), "it holds the project");
}

TEST_P(FailingArchive, IsRefusedWhereSomethingStands) {
  target_.file("full/letter.txt", "somebody's");
  target_.file("file", "somebody's");
  expectRefused(target_.path("full"), "it is not empty");
  expectRefused(target_.path("file"), "is not a folder");
  expectRefused(target_.path("file/below/it"), "is not a folder");
}

TEST_P(FailingArchive, IsRefusedWhereALinkLeadsNowhere) {
  fs::create_symlink("nowhere", target_.path("lost"));
  expectRefused(target_.path("lost"), "is a link that leads nowhere");
  expectRefused(target_.path("lost/below"), "is a link that leads nowhere");
}

TEST_P(FailingArchive, IsRefusedUnderANameThatOpensForAnotherFrontEnd) {
  for (const char* name : {"cfg_analog", "TVX_SIM_1"}) {
    if (GetParam() < 2)
      expectRefused(target_.path(name), "is one of front end 1");
    else
      EXPECT_EQ(runTool({"archive", copy_.project(), target_.path(name)}).status, 0);
  }
}

TEST_P(FailingArchive, NeedsTheNameOfAFolder) {
  expectRefused("", "needs the name of a folder");
  EXPECT_EQ(runTool({"archive", copy_.project()}).status, 2);
}

TEST_P(FailingArchive, IsRefusedForAFolderThatCannotBeMade) {
  const std::string folder = impossibleFolder();
  const ToolRun run = runTool({"archive", copy_.project(), folder});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(contains(run.errors, "the folder \"" + folder + "\" could not be made"))
      << run.errors;
}

TEST_P(FailingArchive, IsNotMadeUnderANameThatIsTooLong) {
  const Everything before = everything();
  const ToolRun run =
      runTool({"archive", copy_.project(), target_.path(std::string(300, 'x')), "--json"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(everything(), before);
}

TEST_P(FailingArchive, IsRefusedUnderANameThatIsTooLong) {
  expectRefused(target_.path(std::string(300, 'x')), "the archive cannot be made in");
}

TEST_P(FailingArchive, TellsControlCharactersInPlainText) {
  const ToolRun run = runTool({"archive", copy_.project(), "/proc/a\x1b[31mb"});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(contains(run.errors, "a\\x1b[31mb")) << run.errors;
  EXPECT_FALSE(contains(run.errors, "\x1b")) << run.errors;
}

// Each file in turn is one that reads differently every time, so that no copy of it is right.
TEST_P(FailingArchive, IsTakenBackWhicheverFileCannotBeCopied) {
  const std::set<std::string> opened = {".tvp", ".dsn", ".sim"};
  int tried = 0;
  for (const auto& [name, content] : snapshotOf(copy_.folder())) {
    if (opened.count(fs::path(name).extension().string()) != 0 || contains(name, "_profile.inc") ||
        copy_.path(name).rfind(projectFolder(), 0) != 0)
      continue;
    fs::remove(copy_.path(name));
    fs::create_symlink("/proc/sys/kernel/random/uuid", copy_.path(name));
    const auto before = snapshotOf(target_.path());
    const ToolRun run = runTool({"archive", copy_.project(), target_.path("archive")});
    EXPECT_EQ(run.status, 1) << name;
    EXPECT_TRUE(contains(run.errors, "could not be copied")) << run.errors;
    EXPECT_TRUE(contains(run.errors, "The project is as it was.")) << run.errors;
    EXPECT_EQ(snapshotOf(target_.path()), before);
    fs::remove(copy_.path(name));
    writeFile(copy_.path(name), content);
    ++tried;
  }
  EXPECT_GE(tried, 7);
  EXPECT_EQ(runTool({"archive", copy_.project(), target_.path("archive")}).status, 0);
}

TEST_P(FailingArchive, IsTakenBackWhenTheDiskIsFull) {
  // Every profile's text is written anew.
  for (const auto& [name, content] : snapshotOf(copy_.folder()))
    if (fs::path(name).extension() == ".sim")
      writeFile(copy_.path(name), content + "Extra = \"" + copy_.project() + "\"\n");
  std::set<std::size_t> sizes;
  for (const auto& [name, content] : snapshotOf(projectFolder()))
    if (content.size() > 1000) // below it there is no room for what the tool says either
      sizes.insert(content.size());
  ASSERT_GE(sizes.size(), 3U);
  for (const std::size_t size : sizes) {
    RunOptions full;
    full.largestFile = size - 1;
    expectTakenBack(target_.path("archive"), full);
    target_.folder("empty");
    expectTakenBack(target_.path("empty"), full);
  }
}

// The longest path that a system takes is reached at another step each time.
TEST_P(FailingArchive, IsTakenBackWhereverAPathGetsTooLong) {
  constexpr std::size_t kLongest = 4095;
  std::string folder = target_.path();
  while (folder.size() + 300 < kLongest)
    folder += "/" + std::string(200, 'x');
  std::set<int> results;
  for (std::size_t size = kLongest - 90; size <= kLongest + 10; size += 7) {
    const std::string archive = folder + "/" + std::string((size - folder.size() - 1) / 2, 'y') +
                                "/" + std::string((size - folder.size() - 1) / 2, 'z');
    const auto before = snapshotOf(folder_);
    const ToolRun run = runTool({"archive", copy_.project(), archive});
    EXPECT_EQ(snapshotOf(folder_), before);
    results.insert(run.status);
    if (run.status == 0) {
      EXPECT_TRUE(isFile(archive + "/" + sample().project));
      fs::remove_all(target_.path(std::string(200, 'x')));
    } else {
      EXPECT_FALSE(fs::exists(target_.path(std::string(200, 'x')))) << run.errors;
    }
  }
  EXPECT_EQ(results, (std::set<int>{0, 1}));
}

} // namespace
