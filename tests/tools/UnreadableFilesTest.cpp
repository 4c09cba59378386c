#include <filesystem>

#include <gtest/gtest.h>

#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// What is told when a file cannot be opened as a project: on standard error alone, with status 1.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

std::string inQuotes(const std::string& text) {
  return "\"" + text + "\"";
}

void expectFailedShow(const std::string& message, const std::string& file) {
  expectFailure(1, message, {"show", file});
  expectFailure(1, message, {"show", "--json", file});
}

TEST(UnreadableFile, IsToldWhenItIsMissing) {
  const TemporaryFolder folder;
  for (const char* name : {"amp.tvp", "amp.sim", "no folder/amp.tvp", "amp.txt"})
    expectFailedShow(inQuotes(folder.path(name)) + " does not exist", folder.path(name));
}

TEST(UnreadableFile, IsToldWhenItIsBelowAFile) {
  const TemporaryFolder folder;
  const std::string file = folder.file("file") + "/amp.tvp";
  expectFailedShow(inQuotes(file) + " does not exist", file);
}

TEST(UnreadableFile, IsToldWhenItIsAFolder) {
  const TemporaryFolder folder;
  for (const char* name : {"amp.tvp", "amp"}) {
    const std::string path = folder.folder(name);
    expectFailedShow(inQuotes(path) + " is a folder, not a project file", path);
  }
}

TEST(UnreadableFile, IsToldWhenLinksLeadNowhere) {
  const TemporaryFolder folder;
  const std::string link = folder.path("amp.tvp");
  fs::create_symlink(link, link);
  expectFailedShow(inQuotes(link) + ": Too many levels of symbolic links", link);
}

TEST(UnreadableFile, IsToldWhenItsNameIsTooLong) {
  const TemporaryFolder folder;
  const std::string file = folder.path(std::string(5000, 'a') + ".tvp");
  expectFailedShow(inQuotes(file) + ": File name too long", file);
}

TEST(UnreadableFile, IsWrongUsageWhenItIsNoKindOfProjectFile) {
  const SampleCopy copy(allSamples().at(1));
  for (const char* name : {"amp.dsn", "npn.lib", "amp-TOP.net"})
    expectFailure(2,
                  inQuotes(copy.path(name)) +
                      " is no project file: expected a .tvp, .sim, .aap or .$ap file",
                  {"show", copy.path(name)});
}

class BrokenSample : public ::testing::Test {
protected:
  SampleCopy copy_{allSamples().at(1)};
};

TEST_F(BrokenSample, GivesTheReasonAndThePlaceInTheProjectFile) {
  writeFile(copy_.project(), "[\"Tervix Resources\"]\n\"Model Libraries\" = 3\n");
  expectFailedShow("error 10109: Failed to read file " + inQuotes(copy_.project()) +
                       ". Check the file syntax.\n  " + copy_.project() +
                       ":2:21: expected a list of file names for \"Model Libraries\", found an "
                       "integer",
                   copy_.project());
}

TEST_F(BrokenSample, GivesTheReasonAndThePlaceWhenOpenedFromAProfile) {
  writeFile(copy_.project(), "# a project\n[Resources\n");
  const ToolRun run = runTool({"show", copy_.path("amp-TOP-ac.sim")});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors.rfind("tervix: error 10109: Failed to read file " +
                                 inQuotes(copy_.project()) + ". Check the file syntax.\n  " +
                                 copy_.project() + ":2:",
                             0),
            0U)
      << run.errors;
}

TEST_F(BrokenSample, GivesTheReasonAndThePlaceInTheDesign) {
  writeFile(copy_.path("amp.dsn"), "[Design]\nSchematics = 3\n");
  expectFailedShow("error 10110: Failed to read the design file " +
                       inQuotes(copy_.path("amp.dsn")) + ".\n  " + copy_.path("amp.dsn") +
                       ":2:14: expected a list of schematic names for \"Schematics\", found an "
                       "integer",
                   copy_.project());
}

TEST_F(BrokenSample, SaysSoWhenTheDesignReaderGivesNoReason) {
  const TemporaryFolder loaderPath;
  fs::copy_file(TERVIX_TOOL_OTHER_LIBRARY, loaderPath.path("ZelDsnReader.dll"));
  RunOptions options;
  options.environment["LD_LIBRARY_PATH"] = loaderPath.path();
  expectFailure(1,
                "error 10110: Failed to read the design file " + inQuotes(copy_.path("amp.dsn")) +
                    ".\n  ZelDsnReader.dll was not found beside the library, or gave no reason.",
                {"show", copy_.project()}, options);
}

TEST_F(BrokenSample, GivesNoLineForBytesThatAreNoText) {
  writeFile(copy_.project(), std::string("\0\x01\x02\xff\xfe", 5));
  const ToolRun run = runTool({"show", copy_.project()});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output, "");
  EXPECT_NE(run.errors.find("error 10109"), std::string::npos) << run.errors;
}

TEST(BrokenWorkspace, LacksItsProfilesFolder) {
  const SampleCopy copy(allSamples().at(2));
  fs::remove_all(copy.path("amp/tvx_sim_1/profiles"));
  expectFailedShow("error 10122: Profiles directory does not exist.", copy.project());
}

TEST(BrokenWorkspace, HasAProjectFileThatIsRead) {
  const SampleCopy copy(allSamples().at(2));
  writeFile(copy.project(), "[\"Tervix Resources\"]\n\"Include Files\" = [1]\n");
  expectFailedShow(
      "error 10109: Failed to read file " + inQuotes(copy.project()) +
          ". Check the file syntax.\n  " + copy.project() +
          ":2:20: expected only file names in the list for \"Include Files\", found an "
          "integer",
      copy.project());
}

TEST(LoneProfile, HasNoProject) {
  const TemporaryFolder folder;
  for (const char* name : {"amp-flat/amp-TOP-ac.sim", "amp-flat/amp-TOP.aap",
                           "amp-simulation/amp-TervixFiles/TOP/ac.sim"}) {
    const std::string content = contentOf(std::string(TERVIX_EXAMPLES) + "/" + name);
    const std::string file = folder.file(fs::path(name).filename().string(), content);
    expectFailedShow("no project file (.tvp) was found for " + inQuotes(file), file);
  }
}

TEST(LoneProfile, IsToldWhenItIsNoProfile) {
  const TemporaryFolder folder;
  const std::string file = folder.file("tran.sim", "not a profile\n");
  expectFailedShow("no project file (.tvp) was found for " + inQuotes(file) +
                       "\n  error 10121: Invalid simulation profile " + inQuotes(file) + ".",
                   file);
}

} // namespace
