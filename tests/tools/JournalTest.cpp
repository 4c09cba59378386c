#include <filesystem>

#include <gtest/gtest.h>

#include "foundation/platform/Process.h"
#include "tests/tools/ChangedSample.h"

// The journal that an interrupted change leaves, and how little it is trusted.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

// A journal of a change of the first sample that made nothing yet, as a killed process leaves it.
class Journal : public ::testing::Test {
protected:
  Journal() {
    const std::string renamed = copy_.path("amp-TervixFiles/TOP/renamed.sim");
    const std::string sim = copy_.path("amp-TervixFiles/TOP/tran.sim");
    json_ = {{"version", 1},
             {"complete", false},
             {"process", 0},
             {"plan",
              {{"change", "rename profile tran to renamed"},
               {"request", Json::array()},
               {"project", copy_.project()},
               {"formerProject", ""},
               {"madeFolders", Json::array()},
               {"made", {{{"path", renamed}, {"source", sim}, {"content", ""}, {"copy", true}}}},
               {"removed", {sim}},
               {"removedFolders", Json::array()},
               {"deleted", Json::array()}}},
             {"rewritten", Json::array()},
             {"newFolders", Json::array()},
             {"kept", Json::array()}};
    fs::copy_file(sim, renamed);
  }

  std::string place() const { return copy_.path(".amp.tvp.tervix-change"); }
  void write() const { writeFile(place(), json_.dump()); }
  void writeText(const std::string& text) const { writeFile(place(), text); }

  ToolRun change() const { return runTool({"profile", "activate", copy_.project(), "ac"}); }

  // Nothing is touched, in the project or outside, and the message names the journal.
  void expectRefused() const {
    const auto before = snapshotOf(copy_.folder());
    const auto outside = snapshotOf(outside_.path());
    const ToolRun run = change();
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(contains(run.errors, ".amp.tvp.tervix-change")) << run.errors;
    EXPECT_EQ(snapshotOf(copy_.folder()), before);
    EXPECT_EQ(snapshotOf(outside_.path()), outside);
  }

  const SampleCopy copy_{allSamples().at(0)};
  const TemporaryFolder outside_;
  Json json_;
};

TEST_F(Journal, IsTakenBackByTheNextChange) {
  write();
  const ToolRun run = change();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors,
            "tervix: \"rename profile tran to renamed\" was interrupted and is now taken back\n");
  EXPECT_FALSE(isFile(copy_.path("amp-TervixFiles/TOP/renamed.sim")));
  EXPECT_TRUE(isFile(copy_.path("amp-TervixFiles/TOP/tran.sim")));
  EXPECT_FALSE(isFile(place()));
}

TEST_F(Journal, IsToldOfByShowAndByADryRun) {
  write();
  const auto before = snapshotOf(copy_.folder());
  const ToolRun show = runTool({"show", copy_.project()});
  EXPECT_EQ(show.status, 0);
  EXPECT_TRUE(contains(show.errors, "tells of an interrupted change")) << show.errors;
  const ToolRun dry = runTool({"profile", "activate", copy_.project(), "ac", "--dry-run"});
  EXPECT_EQ(dry.status, 0);
  EXPECT_TRUE(contains(dry.errors, "tells of an interrupted change")) << dry.errors;
  EXPECT_EQ(snapshotOf(copy_.folder()), before);
}

TEST_F(Journal, IsFoundFromAProfileToo) {
  write();
  const ToolRun run =
      runTool({"profile", "activate", copy_.path("amp-TervixFiles/TOP/ac.sim"), "ac"});
  EXPECT_TRUE(contains(run.errors, "is now taken back")) << run.errors;
}

TEST_F(Journal, ThatIsNoneIsLeftToThePerson) {
  for (const char* text : {"", "{", "[]", "{\"version\": 2}", "{\"version\": 1}", "\xff"}) {
    writeText(text);
    expectRefused();
  }
  fs::remove(place());
  fs::create_directory(place());
  expectRefused();
}

TEST_F(Journal, OfAnotherProjectIsRefused) {
  json_["plan"]["project"] = outside_.path("amp.tvp");
  write();
  expectRefused();
}

TEST_F(Journal, ThatMadeAFileElsewhereIsRefused) {
  const std::string victim = outside_.file("victim", contentOf(copy_.project()));
  for (const std::string& path :
       {victim, copy_.folder() + "/../victim", copy_.folder() + "//victim", std::string("victim"),
        std::string()}) {
    json_["plan"]["made"][0]["path"] = path;
    write();
    expectRefused();
  }
}

TEST_F(Journal, ThatReachesOutThroughALinkIsRefused) {
  outside_.file("victim.sim", contentOf(copy_.path("amp-TervixFiles/TOP/tran.sim")));
  fs::create_directory_symlink(outside_.path(), copy_.path("away"));
  json_["plan"]["made"][0]["path"] = copy_.path("away/victim.sim");
  write();
  expectRefused();
}

TEST_F(Journal, ThatRestoresAFileThroughALinkIsRefused) {
  const std::string victim = outside_.file("victim", "known content");
  fs::create_symlink(victim, copy_.path("link.inc"));
  json_["rewritten"] = {{{"path", copy_.path("link.inc")},
                         {"former", "evil"},
                         {"content", "known content"},
                         {"staged", outside_.path(".tervix-victim")}}};
  write();
  expectRefused();
}

TEST_F(Journal, ThatRemovesMoreThanItsDeletionIsRefused) {
  json_["complete"] = true;
  for (const std::string& path : {copy_.path("opamp.lib"), outside_.file("victim", "x")}) {
    json_["plan"]["removed"] = {path};
    write();
    expectRefused();
  }
}

TEST_F(Journal, ThatDeletesAProfileWhichTheProjectHoldsIsRefused) {
  json_["complete"] = true;
  json_["plan"]["made"] = Json::array();
  json_["plan"]["removed"] = {copy_.path("amp-TervixFiles/TOP/ac/ac.dat")};
  json_["plan"]["deleted"] = {{{"schematic", "TOP"}, {"profile", "ac"}}};
  write();
  expectRefused();
}

TEST_F(Journal, LeavesAFileThatWasChangedSince) {
  writeFile(copy_.path("amp-TervixFiles/TOP/renamed.sim"), "edited by a person");
  write();
  const ToolRun run = change();
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(contains(run.errors, "renamed.sim")) << run.errors;
  EXPECT_EQ(contentOf(copy_.path("amp-TervixFiles/TOP/renamed.sim")), "edited by a person");
  json_["complete"] = true;
  write();
  EXPECT_EQ(change().status, 1);
  EXPECT_TRUE(isFile(copy_.path("amp-TervixFiles/TOP/tran.sim")));
}

TEST_F(Journal, OfAProcessThatIsRunningIsItsOwn) {
  json_["process"] = tervix::platform::processNumber();
  write();
  expectRefused();
}

} // namespace
