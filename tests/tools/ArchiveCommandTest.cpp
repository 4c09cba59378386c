#include <chrono>
#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ChangedSample.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// A whole project is copied to a folder, and opens from there when the original is gone.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

ToolRun archive(Arguments arguments, const RunOptions& options = RunOptions()) {
  arguments.insert(arguments.begin(), "archive");
  return runTool(arguments, options);
}

std::map<std::string, fs::file_time_type> timesBelow(const std::string& folder) {
  std::map<std::string, fs::file_time_type> times = {{"", fs::last_write_time(folder)}};
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    if (!entry.is_symlink())
      times[fs::relative(entry.path(), folder).generic_string()] = entry.last_write_time();
  return times;
}

class ArchivedSample : public ChangedSample {
protected:
  // What belongs to the sample: two of them share a workspace, in a folder each.
  Files filesOfSample() const {
    const std::string own = isFrontEnd2() ? "" : sample().project.substr(0, 4);
    Files files;
    for (const auto& [name, content] : snapshotOf(copy_.folder()))
      if (name.rfind(own, 0) == 0)
        files[name] = content;
    return files;
  }

  std::string archived() const { return target_.path("archive"); }
  std::string archivedProject() const { return archived() + "/" + sample().project; }

  TemporaryFolder target_;
};

INSTANTIATE_TEST_SUITE_P(All, ArchivedSample, ::testing::Range(0, 4), layoutName);

TEST_P(ArchivedSample, OpensWhenTheOriginalIsGone) {
  const auto expected = comparable(shownAsJson({copy_.project()}), copy_.folder());
  const Files files = filesOfSample();
  const ToolRun run = archive({copy_.project(), archived()});
  expectDone(run);
  EXPECT_TRUE(contains(run.output, "opens from  " + archivedProject() + "\n")) << run.output;
  EXPECT_TRUE(contains(run.output, "copied  " + std::to_string(files.size()) + " files, "))
      << run.output;
  fs::remove_all(copy_.folder());
  EXPECT_EQ(snapshotOf(archived()), files);
  EXPECT_EQ(comparable(shownAsJson({archivedProject()}), archived()), expected);
}

TEST_P(ArchivedSample, LeavesTheOriginalAsItIs) {
  const Files files = snapshotOf(copy_.folder());
  const auto times = timesBelow(copy_.folder());
  expectDone(archive({copy_.project(), archived()}));
  EXPECT_EQ(snapshotOf(copy_.folder()), files);
  EXPECT_EQ(timesBelow(copy_.folder()), times);
}

TEST_P(ArchivedSample, KeepsTheTimesOfItsFiles) {
  const fs::file_time_type then = fs::file_time_type::clock::now() - std::chrono::hours(1000);
  fs::last_write_time(copy_.project(), then);
  expectDone(archive({copy_.project(), archived()}));
  EXPECT_EQ(fs::last_write_time(archivedProject()), fs::last_write_time(copy_.project()));
}

TEST_P(ArchivedSample, IsMadeFromAnyFileThatOpensTheProject) {
  int count = 0;
  for (const std::string& file : copy_.openable()) {
    const std::string folder = target_.path(std::to_string(++count));
    expectDone(archive({file, folder}));
    EXPECT_TRUE(isFile(folder + "/" + sample().project)) << file;
  }
}

TEST_P(ArchivedSample, CanBeArchivedAgain) {
  expectDone(archive({copy_.project(), archived()}));
  expectDone(archive({archivedProject(), target_.path("again")}));
  EXPECT_EQ(snapshotOf(target_.path("again")), snapshotOf(archived()));
}

TEST_P(ArchivedSample, TakesAnEmptyFolderAndFoldersThatAreStillToBeMade) {
  for (const std::string& folder : {target_.folder("empty"), target_.path("a/new/one/")})
    expectDone(archive({copy_.project(), folder}));
  EXPECT_EQ(snapshotOf(target_.path("empty")), snapshotOf(target_.path("a/new/one")));
}

TEST_P(ArchivedSample, IsPlannedByADryRunThatTouchesNothing) {
  const auto times = timesBelow(target_.path());
  const ToolRun run = archive({copy_.project(), archived(), "--dry-run", "--json"});
  expectDone(run);
  EXPECT_FALSE(fs::exists(archived()));
  EXPECT_EQ(timesBelow(target_.path()), times);
  const auto plan = nlohmann::json::parse(run.output);
  EXPECT_FALSE(plan["done"].get<bool>());
  EXPECT_EQ(plan["project"], archivedProject());
  std::set<std::string> planned;
  for (const auto& step : plan["steps"])
    if (step["action"] == "copy")
      planned.insert(step["path"].get<std::string>().substr(archived().size() + 1));
  std::set<std::string> expected;
  for (const auto& [name, content] : filesOfSample())
    expected.insert(name);
  EXPECT_EQ(planned, expected);
  EXPECT_EQ(plan["remarks"], nlohmann::json::array());
}

TEST_P(ArchivedSample, TellsTheSameAsJsonWhenItIsDone) {
  auto planned =
      nlohmann::json::parse(archive({copy_.project(), archived(), "--dry-run", "--json"}).output);
  planned["done"] = true;
  const ToolRun run = archive({copy_.project(), archived(), "--json"});
  expectDone(run);
  EXPECT_EQ(nlohmann::json::parse(run.output), planned);
}

TEST_P(ArchivedSample, LacksWhatIsMissingAndTells) {
  const auto opened = shownAsJson({copy_.project()});
  const std::string library = opened["designLevelFiles"][0]["path"];
  fs::remove(library);
  const auto expected = comparable(shownAsJson({copy_.project()}), copy_.folder());
  const ToolRun run = archive({copy_.project(), archived()});
  expectDone(run);
  EXPECT_TRUE(contains(run.output, "  missing  " + library + ": is not there (named by \"" +
                                       copy_.project() + "\")\n"))
      << run.output;
  EXPECT_EQ(comparable(shownAsJson({archivedProject()}), archived()), expected);
}

TEST_P(ArchivedSample, ShowsItsProgressOnATerminalOnly) {
  EXPECT_EQ(archive({copy_.project(), archived()}).errors, "");
  const ToolRun run =
      runToolOnTerminal({"archive", copy_.project(), target_.path("on a terminal")});
  EXPECT_EQ(run.status, 0);
  const std::size_t first = run.output.find("copying file 1 of ");
  const std::size_t cleared = run.output.rfind("\r\x1b[K");
  ASSERT_NE(first, std::string::npos) << run.output;
  EXPECT_EQ(run.output.find("copying file", cleared), std::string::npos) << run.output;
  EXPECT_LT(cleared, run.output.find("archive ")) << run.output;
  // A file takes far less than the time between two drawings.
  EXPECT_FALSE(contains(run.output, "copying file 2 of ")) << run.output;
  const ToolRun json =
      runToolOnTerminal({"archive", copy_.project(), target_.path("json"), "--json"});
  EXPECT_FALSE(contains(json.output, "copying")) << json.output;
  RunOptions dumb;
  dumb.environment = {{"TERM", "dumb"}};
  const ToolRun plain = runToolOnTerminal({"archive", copy_.project(), target_.path("dumb")}, dumb);
  EXPECT_FALSE(contains(plain.output, "copying")) << plain.output;
}

TEST_P(ArchivedSample, KeepsNamesWithBlanksAndApostrophes) {
  const std::string strange = target_.path("it's a new folder");
  const ToolRun run = archive({copy_.project(), strange});
  expectDone(run);
  EXPECT_TRUE(contains(run.output, "it's a new folder")) << run.output;
  EXPECT_EQ(snapshotOf(strange), filesOfSample());
}

TEST_P(ArchivedSample, KeepsNamesWithQuotesAndControlCharacters) {
  const std::string strange = target_.path("it's \"new\"\x1b[31m\n folder");
  const ToolRun run = archive({copy_.project(), strange});
  expectDone(run);
  EXPECT_EQ(run.output.find('\x1b'), std::string::npos);
  EXPECT_TRUE(contains(run.output, "it's \"new\"\\x1b[31m\\x0a folder")) << run.output;
  EXPECT_EQ(snapshotOf(strange), filesOfSample());
}

// ---- What stands among the files of a project ----

class ArchiveOfFolders : public ::testing::Test {
protected:
  std::string inFiles(const std::string& name) const {
    return copy_.path("amp-TervixFiles/" + name);
  }
  std::string copied(const std::string& name) const {
    return target_.path("archive/amp-TervixFiles/" + name);
  }
  ToolRun run() const { return archive({copy_.project(), target_.path("archive")}); }

  SampleCopy copy_{allSamples().at(0)};
  TemporaryFolder target_;
};

TEST_F(ArchiveOfFolders, HoldsFilesWithoutADotFoldersWithOneAndEmptyFolders) {
  writeFile(inFiles("TOP/tran/README"), "no dot");
  writeFile(inFiles("TOP/tran/v1.0/notes"), "a folder with a dot");
  fs::create_directory(inFiles("TOP/empty"));
  writeFile(inFiles("TOP/ac/nothing"), "");
  expectDone(run());
  EXPECT_EQ(contentOf(copied("TOP/tran/README")), "no dot");
  EXPECT_EQ(contentOf(copied("TOP/tran/v1.0/notes")), "a folder with a dot");
  EXPECT_TRUE(isFolder(copied("TOP/empty")));
  EXPECT_EQ(contentOf(copied("TOP/ac/nothing")), "");
}

TEST_F(ArchiveOfFolders, HoldsWhatLinksLeadTo) {
  target_.file("elsewhere/data/run.dat", "data");
  fs::create_directory_symlink(target_.path("elsewhere/data"), inFiles("TOP/data"));
  fs::create_symlink("../../opamp.lib", inFiles("TOP/same.lib"));
  expectDone(run());
  fs::remove_all(target_.path("elsewhere"));
  EXPECT_EQ(contentOf(copied("TOP/data/run.dat")), "data");
  EXPECT_FALSE(fs::is_symlink(copied("TOP/data")));
  EXPECT_FALSE(fs::is_symlink(copied("TOP/same.lib")));
  EXPECT_EQ(contentOf(copied("TOP/same.lib")), contentOf(copy_.path("opamp.lib")));
}

TEST_F(ArchiveOfFolders, DoesNotFollowLinksInCircles) {
  fs::create_directory_symlink("..", inFiles("TOP/up"));
  fs::create_directory_symlink("/", inFiles("TOP/all"));
  // Two folders, each of which leads to the other.
  target_.folder("one");
  target_.folder("two");
  fs::create_directory_symlink(target_.path("two"), target_.path("one/two"));
  fs::create_directory_symlink(target_.path("one"), target_.path("two/one"));
  fs::create_directory_symlink(target_.path("one"), inFiles("TOP/one"));
  const ToolRun done = run();
  expectDone(done);
  for (const char* link : {"TOP/up", "TOP/all", "TOP/one/two/one"}) {
    EXPECT_TRUE(contains(done.output, "  link  " + inFiles(link) +
                                          ": leads to a folder that "
                                          "holds it; not followed\n"))
        << done.output;
    EXPECT_FALSE(fs::exists(copied(link)));
  }
  EXPECT_TRUE(isFolder(copied("TOP/one/two")));
}

TEST_F(ArchiveOfFolders, PassesOverWhatIsNoFileAndTells) {
  ASSERT_TRUE(makePipe(inFiles("TOP/pipe.dat")));
  fs::create_symlink("nowhere", inFiles("TOP/lost"));
  ASSERT_TRUE(makeSocket(inFiles("TOP/s")));
  const ToolRun done = run();
  expectDone(done);
  for (const char* name : {"TOP/pipe.dat", "TOP/s"})
    EXPECT_TRUE(contains(done.output,
                         "  special  " + inFiles(name) + ": is not a regular file; not copied\n"))
        << done.output;
  EXPECT_TRUE(contains(done.output, "  link  " + inFiles("TOP/lost") + ": leads nowhere"))
      << done.output;
  for (const char* name : {"TOP/pipe.dat", "TOP/s", "TOP/lost"})
    EXPECT_FALSE(fs::exists(fs::symlink_status(copied(name)))) << name;
}

TEST_F(ArchiveOfFolders, OpensFromAProjectFileThatIsALink) {
  fs::rename(copy_.project(), target_.path("real.tvp"));
  fs::create_symlink(target_.path("real.tvp"), copy_.project());
  expectDone(run());
  fs::remove(target_.path("real.tvp"));
  EXPECT_FALSE(fs::is_symlink(target_.path("archive/amp.tvp")));
  EXPECT_EQ(shownAsJson({target_.path("archive/amp.tvp")})["schematics"].size(), 2U);
}

TEST_F(ArchiveOfFolders, HoldsAProfileThatWasNeverRun) {
  fs::remove_all(inFiles("BIAS/dc"));
  const ToolRun done = run();
  expectDone(done);
  EXPECT_TRUE(contains(done.output, "missing  " + inFiles("BIAS/dc/dc.dat"))) << done.output;
  const auto tree = shownAsJson({target_.path("archive/amp.tvp")});
  EXPECT_EQ(tree["schematics"][1]["profiles"][0]["name"], "dc");
}

TEST_F(ArchiveOfFolders, HoldsAProjectWithoutProfilesOfWhichTheFolderStaysEmpty) {
  writeFile(copy_.project(), "[\"Design Resources\"]\nFiles = [\"amp.dsn\"]\n");
  fs::remove_all(copy_.path("amp-TervixFiles"));
  fs::create_directory(copy_.path("amp-TervixFiles"));
  expectDone(run());
  EXPECT_EQ(shownAsJson({target_.path("archive/amp.tvp")})["projectType"], 2);
}

TEST(ArchiveOfFilesByName, HoldsWhatARunLeavesAndNothingElse) {
  const SampleCopy copy(allSamples().at(1));
  const TemporaryFolder target;
  writeFile(copy.path("amp-TOP-tran.log"), "of the profile");
  writeFile(copy.path("amp-TOP.log"), "of the schematic");
  writeFile(copy.path("amp-TOP-other.log"), "of no profile");
  writeFile(copy.path("letter.txt"), "somebody's");
  expectDone(archive({copy.project(), target.path("archive")}));
  EXPECT_TRUE(isFile(target.path("archive/amp-TOP-tran.log")));
  EXPECT_TRUE(isFile(target.path("archive/amp-TOP.log")));
  EXPECT_FALSE(isFile(target.path("archive/amp-TOP-other.log")));
  EXPECT_FALSE(isFile(target.path("archive/letter.txt")));
}

} // namespace
