#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/check/CheckFixture.h"

// What is printed, and how wrong usage ends.

using namespace tervix::testing;

namespace {

constexpr const char* kHint = "\nRun with --help for more information.";

TEST(CheckText, GroupsFindingsByFile) {
  const CheckedSample project(1);
  project.replace("amp.tvp", "\"npn.lib\"", "\"npn.lib\", \"gone.lib\"");
  project.replace("amp.tvp", "\"TOP-tran\"", "\"TOP-x\"");
  project.write("npn.lib.bak", "");
  EXPECT_EQ(project.check().output,
            "amp.tvp\n"
            "  error    missing-library  line 10: the library \"gone.lib\" is not there\n"
            "           Put the file back, or correct or remove its name.\n"
            "  warning  unknown-active  line 16: the active profile \"TOP-x\" is not a profile of "
            "the root schematic\n"
            "           Activate a profile that is there.\n"
            "npn.lib.bak\n"
            "  warning  stale-backup  \"npn.lib\" is whole\n"
            "           Remove it. (--fix)\n"
            "1 error, 2 warnings, 0 notes; --fix repairs 1\n");
}

TEST(CheckText, TellsWhereAProjectFileIsWrong) {
  const CheckedSample project(1);
  project.write("amp.tvp", "[\"Tervix Resources\"]\n\"Model Libraries\" = 3\n");
  const ToolRun run = project.check();
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output,
            "amp.tvp\n  error    project-unopenable  line 2: expected a list of file names for "
            "\"Model Libraries\", found an integer\n"
            "           Put right what the message names.\n1 error, 0 warnings, 0 notes\n");
}

TEST(CheckText, IsColouredOnATerminal) {
  const CheckedSample project(1);
  project.write("npn.lib.bak", "");
  const ToolRun run = runToolOnTerminal({"check", project.project()});
  EXPECT_NE(run.output.find("\033[1mwarning\033[0m"), std::string::npos) << run.output;
}

TEST(CheckText, TellsOnATerminalHowFarItIs) {
  const CheckedSample project(0);
  const ToolRun run = runToolOnTerminal({"check", project.project()});
  const std::size_t told = run.output.find("\r\033[Klisting the folders of profiles (");
  const std::size_t cleared = run.output.rfind("\r\033[K");
  ASSERT_NE(told, std::string::npos) << run.output;
  EXPECT_LT(told, cleared) << run.output;
  EXPECT_LT(cleared, run.output.find("nothing found")) << run.output;
  EXPECT_EQ(project.check().errors, "");
}

TEST(CheckText, FailsWhenItCannotBePrinted) {
  const CheckedSample project(1);
  project.write("npn.lib.bak", "");
  RunOptions options;
  options.output = Output::kFullDevice;
  const EntriesOnDisk before = entriesOf(project.folder());
  EXPECT_EQ(runTool({"check", project.project()}, options).status, 1);
  expectUntouched(before, entriesOf(project.folder()), "printing");
}

TEST(CheckUsage, NeedsAFileThatIsThere) {
  expectFailure(2, std::string("FILE is required") + kHint, {"check"});
  expectFailure(2, "\"gone.tvp\" is not a file that is there", {"check", "gone.tvp"});
  const CheckedSample project(1);
  expectFailure(2, "\"" + project.folder() + "\" is not a file that is there",
                {"check", project.folder()});
}

TEST(CheckUsage, FollowsTheFolderAboveALinkAsTheSystemDoes) {
  const CheckedSample project(1);
  const TemporaryFolder elsewhere;
  std::filesystem::create_directory_symlink(project.folder(), elsewhere.path("link"));
  const std::string name = std::filesystem::path(project.folder()).filename().string();
  const ToolRun run = runTool({"check", elsewhere.path("link/../" + name + "/amp.tvp")});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.output, "nothing found\n");
}

TEST(CheckUsage, NeedsAFileOfAProject) {
  const CheckedSample project(1);
  const ToolRun run = runTool({"check", project.path("npn.lib")});
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.errors.find("is no project file"), std::string::npos) << run.errors;
}

TEST(CheckUsage, TakesADryRunOfRepairsOnly) {
  expectFailure(2, std::string("--dry-run requires --fix") + kHint,
                {"check", "amp.tvp", "--dry-run"});
}

TEST(CheckUsage, IsToldInItsHelp) {
  const ToolRun run = runTool({"check", "--help"});
  EXPECT_EQ(run.status, 0);
  for (const char* word : {"--json", "--strict", "--fix", "--dry-run", "3 errors found"})
    EXPECT_NE(run.output.find(word), std::string::npos) << run.output;
}

} // namespace
