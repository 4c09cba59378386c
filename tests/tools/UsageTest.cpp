#include <gtest/gtest.h>

#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

using namespace tervix::testing;

namespace {

constexpr const char* kHint = "\nRun with --help for more information.";

TEST(WrongUsage, IsNoArguments) {
  expectFailure(2, std::string("A subcommand is required") + kHint, {});
}

TEST(WrongUsage, IsAnUnknownCommand) {
  expectFailure(2, std::string("there is no command \"tell\"") + kHint, {"tell"});
  expectFailure(2, std::string("there is no command \"amp.tvp\"") + kHint, {"amp.tvp"});
  expectFailure(2, std::string("there is no command \"\"") + kHint, {""});
  expectFailure(2, std::string("there is no command \"profile frob\"") + kHint,
                {"profile", "frob", "amp.tvp"});
}

TEST(WrongUsage, IsAnUnknownOption) {
  expectFailure(2, std::string("The following argument was not expected: --bad") + kHint,
                {"show", "amp.tvp", "--bad"});
  expectFailure(2, std::string("A subcommand is required") + kHint, {"--bad"});
}

TEST(WrongUsage, IsACommandWithoutItsFile) {
  expectFailure(2, std::string("FILE is required") + kHint, {"show"});
  expectFailure(2, std::string("FILE is required") + kHint, {"show", "--json"});
}

TEST(WrongUsage, IsASecondFile) {
  expectFailure(2, std::string("The following argument was not expected: b.tvp") + kHint,
                {"show", "a.tvp", "b.tvp"});
}

TEST(WrongUsage, IsASchematicWithoutAName) {
  expectFailure(2, std::string("--schematic: it is empty") + kHint,
                {"profile", "add", "amp.tvp", "x", "--schematic", ""});
}

TEST(WrongUsage, IsAFrontEndThatDoesNotExist) {
  for (const char* frontEnd : {"3", "-1", "x", "1.5", "99999999999999999999"})
    expectFailure(2, std::string("--front-end: Value ") + frontEnd + " not in range 0 to 2" + kHint,
                  {"show", "amp.tvp", "--front-end", frontEnd});
}

TEST(WrongUsage, IsAFrontEndThatDoesNotFitTheFile) {
  const SampleCopy copy(allSamples().at(1));
  expectFailure(2, "front end 0 opens .sim, .aap and .$ap files only",
                {"show", copy.project(), "--front-end", "0"});
  expectFailure(2, "front end 1 opens project files in a folder cfg_analog or tvx_sim_1 only",
                {"show", copy.project(), "--front-end", "1"});
  for (const char* frontEnd : {"1", "2"})
    for (const char* file : {"amp-TOP-ac.sim", "amp-TOP.aap"})
      expectFailure(2, std::string("front end ") + frontEnd + " opens .tvp files only",
                    {"show", copy.path(file), "--front-end", frontEnd});
}

TEST(Help, TellsTheCommandsAndTheExitStatuses) {
  for (const char* option : {"--help", "-h"}) {
    const ToolRun run = runTool({option});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    for (const char* word :
         {"tervix", "show", "files", "lib", "--version", "0 done, 1 failed, 2 wrong usage"})
      EXPECT_NE(run.output.find(word), std::string::npos) << run.output;
  }
}

TEST(Help, TellsTheOptionsOfShow) {
  const ToolRun run = runTool({"show", "--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  for (const char* word : {"show [OPTIONS] FILE", "--front-end N", "--json", ".tvp"})
    EXPECT_NE(run.output.find(word), std::string::npos) << run.output;
}

TEST(Version, IsThatOfTheProject) {
  const ToolRun run = runTool({"--version"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, "tervix " TERVIX_TOOL_VERSION "\n");
}

TEST(LostOutput, IsAFailure) {
  const SampleCopy copy(allSamples().at(0));
  for (const Output output : {Output::kClosed, Output::kFullDevice}) {
    RunOptions options;
    options.output = output;
    for (const Arguments& arguments : {Arguments{"show", copy.project()},
                                       {"show", "--json", copy.project()},
                                       {"--help"},
                                       {"show", "--help"},
                                       {"--version"}})
      expectFailure(1, "the output could not be written", arguments, options);
  }
}

} // namespace
