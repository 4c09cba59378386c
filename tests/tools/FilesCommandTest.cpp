#include <array>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ProjectBuilder.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tools/JsonKeys.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// Where the files of a project lie, as `tervix files` lists them.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

ToolRun files(Arguments arguments) {
  arguments.insert(arguments.begin(), "files");
  return runTool(arguments);
}

Json filesAsJson(Arguments arguments) {
  arguments.emplace_back("--json");
  const ToolRun run = files(arguments);
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.errors, "");
  return Json::parse(run.output, nullptr, false);
}

std::vector<std::string> namesOf(const Json& list) {
  std::vector<std::string> names;
  for (const Json& element : list)
    names.push_back(element["name"]);
  return names;
}

constexpr time_t kMorning = 1772357400; // 2026-03-01T09:30:00Z

// What `tervix show` knows of a file.
Json withoutDetails(Json files) {
  for (Json& file : files) {
    file.erase("size");
    file.erase("modified");
  }
  return files;
}

class FilesOfSample : public ::testing::TestWithParam<Sample> {
protected:
  SampleCopy copy_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(All, FilesOfSample, ::testing::ValuesIn(allSamples()),
                         [](const auto& sample) {
                           std::string name = sample.param.name;
                           name.replace(name.find('-'), 1, "_");
                           return name;
                         });

TEST_P(FilesOfSample, AreThoseThatShowKnows) {
  const Json project = shownAsJson({copy_.project()});
  const Json listing = filesAsJson({copy_.project()});
  EXPECT_EQ(listing["version"], 1);
  EXPECT_EQ(listing["project"], project["path"]);
  ASSERT_EQ(namesOf(listing["schematics"]), namesOf(project["schematics"]));
  std::size_t number = 0;
  for (std::size_t i = 0; i < project["schematics"].size(); ++i) {
    const Json& schematic = project["schematics"][i];
    EXPECT_EQ(listing["schematics"][i]["files"].size(), 11U);
    EXPECT_EQ(withoutDetails(listing["schematics"][i]["files"]), schematic["files"]);
    for (const Json& profile : schematic["profiles"]) {
      const Json& listed = listing["profiles"].at(number++);
      EXPECT_EQ(listed["name"], profile["name"]);
      EXPECT_EQ(listed["displayName"], profile["displayName"]);
      EXPECT_EQ(listed["schematic"], schematic["name"]);
      EXPECT_EQ(listed["active"], profile["active"]);
      EXPECT_EQ(listed["folder"], profile["folder"]);
      EXPECT_EQ(listed["files"].size(), 18U);
      EXPECT_EQ(withoutDetails(listed["files"]), profile["files"]);
    }
  }
  EXPECT_EQ(listing["profiles"].size(), number);
}

TEST_P(FilesOfSample, HaveTheSizeAndTimeOnDisk) {
  for (const auto& entry : fs::recursive_directory_iterator(copy_.folder())) {
    if (!entry.is_regular_file())
      continue;
    ASSERT_TRUE(setModified(entry.path().string(), kMorning));
  }
  const Json listing = filesAsJson({copy_.project()});
  std::size_t there = 0;
  for (const char* kind : {"schematics", "profiles"})
    for (const Json& owner : listing[kind])
      for (const Json& file : owner["files"]) {
        if (!file["exists"].get<bool>()) {
          EXPECT_TRUE(file["size"].is_null()) << file;
          EXPECT_TRUE(file["modified"].is_null()) << file;
          continue;
        }
        ++there;
        EXPECT_EQ(file["size"], fs::file_size(file["path"].get<std::string>())) << file;
        EXPECT_EQ(file["modified"], "2026-03-01T09:30:00Z") << file;
      }
  EXPECT_GE(there, 5U);
}

TEST_P(FilesOfSample, AreThoseOfOneProfileWhenItIsNamed) {
  const Json all = filesAsJson({copy_.project()});
  for (const Json& profile : all["profiles"])
    for (const char* key : {"name", "displayName"}) {
      const Json one = filesAsJson({copy_.project(), "--profile", profile[key]});
      EXPECT_EQ(one["schematics"], Json::array());
      EXPECT_EQ(one["profiles"], Json::array({profile}));
    }
}

TEST_P(FilesOfSample, AreThoseOfOneSchematicWhenItIsNamed) {
  const Json all = filesAsJson({copy_.project()});
  for (const Json& schematic : all["schematics"]) {
    const Json one = filesAsJson({copy_.project(), "--schematic", schematic["name"]});
    EXPECT_EQ(one["schematics"], Json::array({schematic}));
    Json profiles = Json::array();
    for (const Json& profile : all["profiles"])
      if (profile["schematic"] == schematic["name"])
        profiles.push_back(profile);
    EXPECT_EQ(one["profiles"], profiles);
  }
}

TEST_P(FilesOfSample, HaveNoJsonKeyThatIsNotDocumented) {
  expectKeysDocumented(filesAsJson({copy_.project()}), "files-json.md");
}

TEST_P(FilesOfSample, StayAsTheyAre) {
  const auto before = snapshotOf(copy_.folder());
  files({copy_.project()});
  filesAsJson({copy_.project()});
  EXPECT_EQ(snapshotOf(copy_.folder()), before);
}

TEST(FilesCommand, PrintsATable) {
  const SampleCopy copy(allSamples().at(1));
  for (const char* file : {"amp-TOP-ac.dat", "amp-TOP-ac.out", "amp-TOP-ac.sim.cir"})
    ASSERT_TRUE(setModified(copy.path(file), kMorning));
  const ToolRun run = files({copy.project(), "--profile", "ac"});
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, "profile TOP-ac\n"
                        "  type       size  modified              file\n"
                        "  csd           -  -                     amp-TOP-ac.csd\n"
                        "  dat       39794  2026-03-01T09:30:00Z  amp-TOP-ac.dat\n"
                        "  opt.dat       -  -                     amp-TOP-ac.opt.dat\n"
                        "  mc.dat        -  -                     amp-TOP-ac.mc.dat\n"
                        "  sens.dat      -  -                     amp-TOP-ac.sens.dat\n"
                        "  opt.csd       -  -                     amp-TOP-ac.opt.csd\n"
                        "  mc.csd        -  -                     amp-TOP-ac.mc.csd\n"
                        "  sens.csd      -  -                     amp-TOP-ac.sens.csd\n"
                        "  out         448  2026-03-01T09:30:00Z  amp-TOP-ac.out\n"
                        "  out.1         -  -                     amp-TOP-ac.out.1\n"
                        "  opt.out       -  -                     amp-TOP-ac.opt.out\n"
                        "  mc.out        -  -                     amp-TOP-ac.mc.out\n"
                        "  sens.out      -  -                     amp-TOP-ac.sens.out\n"
                        "  prb           -  -                     amp-TOP-ac.prb\n"
                        "  mrk           -  -                     amp-TOP-ac.mrk\n"
                        "  1op           -  -                     amp-TOP-ac.sim.1op\n"
                        "  cir         462  2026-03-01T09:30:00Z  amp-TOP-ac.sim.cir\n"
                        "  mif           -  -                     amp-TOP-ac.sim.mif\n");
}

TEST(FilesCommand, PutsTheProfilesBelowTheirSchematic) {
  const SampleCopy copy(allSamples().at(0));
  const std::string text = files({copy.project()}).output;
  std::size_t place = 0;
  for (const char* heading : {"schematic TOP  root\n", "\nprofile TOP-tran  active\n",
                              "\nprofile TOP-ac\n", "\nschematic BIAS\n", "\nprofile BIAS-dc\n"}) {
    const std::size_t found = text.find(heading, place);
    ASSERT_NE(found, std::string::npos) << heading << text;
    place = found;
  }
}

TEST(FilesCommand, GivesTimesOfAnyYear) {
  const SampleCopy copy(allSamples().at(1));
  const std::vector<std::pair<time_t, std::string>> times = {
      {-1, "1969-12-31T23:59:59Z"},         {0, "1970-01-01T00:00:00Z"},
      {951782400, "2000-02-29T00:00:00Z"},  {1709251199, "2024-02-29T23:59:59Z"},
      {1709251200, "2024-03-01T00:00:00Z"}, {4107542399, "2100-02-28T23:59:59Z"},
      {4107542400, "2100-03-01T00:00:00Z"}, {1798761599, "2026-12-31T23:59:59Z"}};
  for (const auto& [seconds, text] : times) {
    ASSERT_TRUE(setModified(copy.path("amp-TOP-ac.dat"), seconds));
    const Json listing = filesAsJson({copy.project(), "--profile", "ac"});
    EXPECT_EQ(listing["profiles"][0]["files"][1]["modified"], text);
  }
}

TEST(FilesCommand, TellsTimesInUtcWhateverTheZone) {
  const SampleCopy copy(allSamples().at(1));
  ASSERT_TRUE(setModified(copy.path("amp-TOP-ac.dat"), kMorning));
  const ToolRun run = runTool({"files", copy.project()}, {"", {{"TZ", "Asia/Tokyo"}}});
  EXPECT_NE(run.output.find("2026-03-01T09:30:00Z  amp-TOP-ac.dat\n"), std::string::npos);
}

TEST(FilesCommand, TakesAFolderOrAFifoForNoFile) {
  const SampleCopy copy(allSamples().at(1));
  fs::create_directory(copy.path("amp-TOP-ac.csd"));
  ASSERT_TRUE(makePipe(copy.path("amp-TOP-ac.mrk")));
  const std::string text = files({copy.project(), "--profile", "ac"}).output;
  for (const char* line : {"\n  csd           -  -                     amp-TOP-ac.csd\n",
                           "\n  mrk           -  -                     amp-TOP-ac.mrk\n"})
    EXPECT_NE(text.find(line), std::string::npos) << text;
}

TEST(FilesCommand, FollowsALink) {
  const SampleCopy copy(allSamples().at(1));
  fs::create_symlink("amp-TOP-ac.dat", copy.path("amp-TOP-ac.csd"));
  const Json listing = filesAsJson({copy.project(), "--profile", "ac"});
  EXPECT_EQ(listing["profiles"][0]["files"][0]["size"], 39794);
}

TEST(FilesCommand, SpellsStrangeNamesOut) {
  const TemporaryFolder folder;
  const std::string project = folder.file("a\x1b[2J/cfg_analog/a.tvp");
  folder.file("a\x1b[2J/cfg_analog/b\x07.sim",
              simText("b\x07", "b\x07.sim", "a\x1b[2J", "a.tvp", "a\x1b[2J", "b.dat", "b.out"));
  const std::string text = files({project}).output;
  EXPECT_EQ(text.find_first_of("\x1b\x07"), std::string::npos) << text;
  EXPECT_NE(text.find("schematic a\\x1b[2J\n"), std::string::npos) << text;
  EXPECT_NE(text.find("profile b\\x07\n"), std::string::npos) << text;
  EXPECT_EQ(filesAsJson({project})["profiles"][0]["name"], "b\x07");
}

TEST(FilesCommand, SetsOffWhatIsThereOnATerminal) {
  const SampleCopy copy(allSamples().at(1));
  const std::string text = runToolOnTerminal({"files", copy.project(), "--profile", "ac"}).output;
  EXPECT_NE(text.find("profile \033[1mTOP-ac\033[0m\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\033[2mamp-TOP-ac.csd\033[0m\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("Z  amp-TOP-ac.dat\r\n"), std::string::npos) << text;
}

TEST(FilesCommand, SaysWhatThereIsInsteadOfAnUnknownName) {
  const SampleCopy copy(allSamples().at(0));
  expectFailure(1, "there is no schematic \"x\"; the project has: TOP, BIAS",
                {"files", copy.project(), "--schematic", "x"});
  expectFailure(1, "there is no schematic \"\"; the project has: TOP, BIAS",
                {"files", copy.project(), "--schematic", ""});
  expectFailure(1, "there is no profile \"x\"; there are: TOP-tran, TOP-ac, BIAS-dc",
                {"files", copy.project(), "--profile", "x"});
  expectFailure(1, "there is no profile \"dc\"; there are: TOP-tran, TOP-ac",
                {"files", copy.project(), "--profile", "dc", "--schematic", "top"});
}

} // namespace
