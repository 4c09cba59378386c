#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/Sample.h"
#include "tests/tools/report/ReportFixture.h"

// When and where a report is written.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

constexpr const char* kHint = "\nRun with --help for more information.";
constexpr const char* kBeginning = "<!DOCTYPE html>\n<html lang=\"en\" data-report=\"tervix\">";

class ReportCommand : public ::testing::Test {
protected:
  ToolRun report(const Arguments& options, const RunOptions& run = RunOptions()) const {
    Arguments arguments = {"report", project()};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return runTool(arguments, run);
  }

  void expectRefusal(const std::string& page, const std::string& message,
                     const Arguments& options = {}) const {
    Arguments arguments = {"report", project(), "-o", page};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const EntriesOnDisk before = entriesOf(sample_.folder());
    expectFailure(1, message, arguments);
    expectUntouched(before, entriesOf(sample_.folder()), "a refusal");
  }

  std::string project() const { return sample_.project(); }

  SampleCopy sample_{allSamples().at(1)};
  ReportFolder pages_;
};

class ReportedSample : public ::testing::TestWithParam<Sample> {};

TEST_P(ReportedSample, StaysAsItIs) {
  const SampleCopy copy(GetParam());
  const ReportFolder pages;
  for (const std::string& file : copy.openable()) {
    const EntriesOnDisk before = entriesOf(copy.folder());
    EXPECT_EQ(pages.pageOf(file).rfind(kBeginning, 0), 0U);
    expectUntouched(before, entriesOf(copy.folder()), file);
  }
}

INSTANTIATE_TEST_SUITE_P(All, ReportedSample, ::testing::ValuesIn(allSamples()),
                         [](const auto& sample) {
                           std::string name = sample.param.name;
                           name.replace(name.find('-'), 1, "_");
                           return name;
                         });

TEST_F(ReportCommand, NeedsAFileAndAPage) {
  expectFailure(2, std::string("--output is required") + kHint, {"report", project()});
  expectFailure(2, std::string("FILE is required") + kHint, {"report", "-o", "x.html"});
  expectFailure(2, "\"gone.tvp\" is not a file that is there",
                {"report", "gone.tvp", "-o", pages_.path()});
  expectFailure(2, "the page has no name", {"report", project(), "-o", ""});
  EXPECT_EQ(runTool({"report", project(), "-o", pages_.path(), "--json"}).status, 2);
  EXPECT_FALSE(isFile(pages_.path()));
}

TEST_F(ReportCommand, ReplacesAnEarlierReport) {
  pages_.pageOf(project());
  pages_.file("page.html", contentOf(pages_.path()) + "<!-- old -->");
  EXPECT_EQ(pages_.pageOf(project()).find("<!-- old -->"), std::string::npos);
}

TEST_F(ReportCommand, DoesNotWaitForAPipe) {
  const std::string page = pages_.path();
  ASSERT_TRUE(makePipe(page));
  const ToolRun run = report({"-o", page});
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.errors.find("\"" + page + "\" is no regular file"), std::string::npos)
      << run.errors;
}

TEST_F(ReportCommand, ReplacesAnotherFileOnlyByForce) {
  const std::string page = pages_.file("page.html", "<!DOCTYPE html>\nmine");
  expectRefusal(page, "\"" + page + "\" is there and is no report; --force overwrites it");
  EXPECT_EQ(contentOf(page), "<!DOCTYPE html>\nmine");
  EXPECT_EQ(report({"-o", page, "--force"}).status, 0);
  EXPECT_EQ(contentOf(page).rfind(kBeginning, 0), 0U);
}

TEST_F(ReportCommand, NeverReplacesAFileOfTheProject) {
  for (const char* name : {"amp.tvp", "amp.dsn", "npn.lib", "amp-TOP.net", "amp-TOP-ac.sim",
                           "amp-TOP-tran.dat", "amp-TOP-tran.out"}) {
    const std::string file = sample_.path(name);
    expectRefusal(file, "\"" + file + "\" is a file of the project", {"--force"});
  }
}

TEST_F(ReportCommand, NeverReplacesAFileThatAnotherOfTheProjectNames) {
  writeFile(sample_.path("npn.lib"), ".inc deep.inc\n");
  writeFile(sample_.path("deep.inc"), ".inc deeper.inc\n");
  writeFile(sample_.path("deeper.inc"), "");
  writeFile(sample_.path("amp-TOP-new.sim"),
            "ProfileName = \"new\"\nRootSchematics = \"TOP\"\nProjectFile = \"amp.tvp\"\n");
  for (const char* name : {"deep.inc", "deeper.inc", "amp-TOP-new.sim"}) {
    const std::string file = sample_.path(name);
    expectRefusal(file, "\"" + file + "\" is a file of the project", {"--force"});
  }
}

TEST_F(ReportCommand, NeverTakesThePlaceOfAnIncludeList) {
  const SampleCopy copy(allSamples().at(0));
  for (const char* name : {"TOP/tran/tran_profile.inc", "BIAS/dc/dc_profile.inc"}) {
    const std::string file = copy.path(std::string("amp-TervixFiles/") + name);
    const EntriesOnDisk before = entriesOf(copy.folder());
    expectFailure(1, "\"" + file + "\" is a file of the project",
                  {"report", copy.project(), "-o", file, "--force"});
    expectUntouched(before, entriesOf(copy.folder()), "a refusal");
  }
}

// Which files are its own cannot be told.
TEST_F(ReportCommand, ReplacesNothingButAReportWhereTheProjectCannotBeOpened) {
  writeFile(project(), "[\"Tervix Resources\"]\n\"Model Libraries\" = 3\n");
  for (const char* name : {"amp.tvp", "npn.lib"}) {
    const std::string file = sample_.path(name);
    expectRefusal(file,
                  "\"" + file +
                      "\" is there and is no report; whether it is a file of the "
                      "project cannot be told",
                  {"--force"});
  }
  pages_.pageOf(project());
  EXPECT_EQ(report({"-o", pages_.path()}).status, 0);
}

TEST_F(ReportCommand, NeverTakesTheNameOfAFileThatARunWouldMake) {
  const std::string file = sample_.path("amp-TOP-tran.csd");
  ASSERT_FALSE(isFile(file));
  expectRefusal(file, "\"" + file + "\" is a file of the project");
  const std::string upper = sample_.path("AMP-TOP-TRAN.CSD");
  expectRefusal(upper, "\"" + upper + "\" is a file of the project");
}

TEST_F(ReportCommand, SeesThroughLinks) {
  const std::string file = pages_.path("file.html");
  fs::create_symlink(sample_.path("amp.dsn"), file);
  expectRefusal(file, "\"" + file + "\" is a file of the project", {"--force"});
  fs::create_directory_symlink(sample_.folder(), pages_.path("folder"));
  const std::string made = pages_.path("folder/amp-TOP-tran.csd");
  expectRefusal(made, "\"" + made + "\" is a file of the project", {"--force"});
  const std::string nowhere = pages_.path("nowhere.html");
  fs::create_symlink(pages_.path("gone"), nowhere);
  expectRefusal(nowhere, "\"" + nowhere + "\" is a link that leads nowhere", {"--force"});
}

TEST_F(ReportCommand, NeedsAFolderForThePage) {
  const std::string page = pages_.path("gone/page.html");
  expectRefusal(page, "the folder of \"" + page + "\" is not there");
  expectRefusal(sample_.folder(), "\"" + sample_.folder() + "\" is a folder", {"--force"});
}

TEST_F(ReportCommand, MayPutThePageIntoTheFolderOfTheProject) {
  const std::string page = sample_.path("page.html");
  EXPECT_EQ(report({"-o", page}).status, 0);
  EXPECT_EQ(report({"-o", "page.html"}, {sample_.folder(), {}}).status, 0);
  EXPECT_EQ(dataIn(contentOf(page))["findings"].size(), 0U);
}

TEST_F(ReportCommand, LeavesNothingOnAFullDisk) {
  RunOptions options;
  options.largestFile = 1000;
  const ToolRun run = report({"-o", pages_.path()}, options);
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.errors.find("could not be written"), std::string::npos) << run.errors;
  EXPECT_TRUE(fs::is_empty(fs::path(pages_.path()).parent_path()));
}

TEST_F(ReportCommand, KeepsTheEarlierReportOnAFullDisk) {
  const std::string before = pages_.pageOf(project());
  RunOptions options;
  options.largestFile = 1000;
  EXPECT_EQ(report({"-o", pages_.path()}, options).status, 1);
  EXPECT_EQ(contentOf(pages_.path()), before);
}

TEST_F(ReportCommand, TellsWhyAProjectCannotBeOpened) {
  writeFile(project(), "[\"Tervix Resources\"]\n\"Model Libraries\" = 3\n");
  const auto data = pages_.dataOf(project());
  EXPECT_TRUE(data["project"].is_null());
  EXPECT_EQ(data["path"], project());
  ASSERT_EQ(data["findings"].size(), 1U);
  EXPECT_EQ(data["findings"][0]["code"], "project-unopenable");
  EXPECT_EQ(data["findings"][0]["line"], 2);
}

TEST_F(ReportCommand, IsSilentOnATerminalInTheEnd) {
  const ToolRun run = runToolOnTerminal({"report", project(), "-o", pages_.path()});
  EXPECT_EQ(run.status, 0);
  const std::size_t cleared = run.output.rfind("\r\033[K");
  EXPECT_EQ(run.output.substr(cleared == std::string::npos ? 0 : cleared + 4), "");
}

} // namespace
