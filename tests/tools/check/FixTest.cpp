#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/check/CheckFixture.h"

// --fix repairs what loses nothing, and what it did can be taken back.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

using Found = std::vector<std::string>;

const std::string kList = "amp-TervixFiles/TOP/tran/tran_profile.inc";
const std::string kDc = "amp-TervixFiles/BIAS/dc.sim";

class Fix : public ::testing::Test {
protected:
  // One finding of each kind that can be repaired, in files of each kind.
  void SetUp() override {
    project_.replace("amp.tvp", "\"opamp.lib\"", "'" + project_.path("opamp.lib") + "'");
    project_.replace("amp.tvp", "./amp-TervixFiles/TOP/tran/tran.out",
                     project_.path("amp-TervixFiles/TOP/tran/tran.out"));
    project_.replace("amp.tvp", ", \"./amp-TervixFiles/BIAS/dc.sim\"", "");
    project_.replace(kDc, "./dc/dc.dat", project_.path("amp-TervixFiles/BIAS/dc/dc.dat"));
    project_.replace(kDc, "./dc/dc.out", project_.path("amp-TervixFiles/BIAS/dc/dc.out"));
    project_.replace(kList, "..\\..\\..\\local.inc", project_.path("local.inc"));
    project_.append("opamp.lib", ".inc '" + project_.path("supply.inc") + "' ; the supply\n");
    project_.write("amp-TervixFiles/TOP/ac.sim.bak", "of before");
    project_.write("opamp.lib.bak", "of before");
  }

  ToolRun fix(const Arguments& options = {}) const {
    Arguments all = {"--fix"};
    all.insert(all.end(), options.begin(), options.end());
    return project_.check(all);
  }

  std::string saved() const { return project_.path("amp-TervixSaved-1"); }

  CheckedSample project_{0};
};

TEST_F(Fix, LeavesNothingOfWhatItRepairs) {
  const auto json = project_.checkedAsJson();
  EXPECT_EQ(json["findings"].size(), 9U);
  for (const auto& finding : json["findings"])
    EXPECT_EQ(finding["fixable"], true) << finding;
  const ToolRun run = fix({"--strict"});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(findingsIn(project_.checkedAsJson()), Found());
}

TEST_F(Fix, IsNotDoneWhenItCannotBePrintedFirst) {
  const EntriesOnDisk before = entriesOf(project_.folder());
  RunOptions options;
  options.output = Output::kFullDevice;
  const ToolRun run = runTool({"check", project_.project(), "--fix"}, options);
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.errors.find("so none was made"), std::string::npos) << run.errors;
  expectUntouched(before, entriesOf(project_.folder()), "printing");
}

TEST_F(Fix, CountsWhatComesToLight) {
  project_.replace("amp-TervixFiles/TOP/ac/ac_profile.inc", "sweep.stl", "SWEEP.STL");
  project_.replace("amp.tvp", ", \"./amp-TervixFiles/TOP/ac.sim\"", "");
  EXPECT_EQ(project_.check().status, 0);
  EXPECT_EQ(fix().status, 3);
  EXPECT_EQ(project_.check().status, 3);
}

TEST_F(Fix, ChangesOnlyTheTextThatIsWrong) {
  fix();
  EXPECT_NE(project_.content("amp.tvp").find("[\"./opamp.lib\"]"), std::string::npos);
  EXPECT_NE(project_.content("amp.tvp").find("\"./amp-TervixFiles/BIAS/dc.sim\""),
            std::string::npos);
  EXPECT_EQ(project_.content(kList), ".INC\t\"../../../local.inc\" \n.INC\t\".\\load.inc\" \n"
                                     ".LIB\t\".\\cable.lib\" \n.STMLIB\t\".\\overdrive.stl\" \n");
  const CheckedSample healthy(0);
  EXPECT_EQ(project_.content(kDc), healthy.content(kDc));
  EXPECT_EQ(project_.content("opamp.lib"),
            healthy.content("opamp.lib") + ".inc './supply.inc' ; the supply\n");
}

TEST_F(Fix, IsUndoneFromTheSavedCopy) {
  const auto before = snapshotOf(project_.folder());
  ASSERT_EQ(fix().status, 0);
  ASSERT_FALSE(snapshotOf(project_.folder()) == before);
  fs::copy(saved(), project_.path("."),
           fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  fs::remove_all(saved());
  EXPECT_EQ(snapshotOf(project_.folder()), before);
}

TEST_F(Fix, SavesWhatItRewritesAndRemovesAndNothingElse) {
  fix();
  std::set<std::string> names;
  for (const auto& [name, content] : snapshotOf(saved()))
    names.insert(name);
  EXPECT_EQ(names,
            (std::set<std::string>{"amp-TervixFiles/BIAS/dc.sim", "amp-TervixFiles/TOP/ac.sim.bak",
                                   kList, "amp.tvp", "opamp.lib", "opamp.lib.bak"}));
}

TEST_F(Fix, PrintsWhatItDoesAndWhereTheFormerFilesGo) {
  const ToolRun run = fix();
  EXPECT_NE(run.output.find("rewrite  " + project_.path("amp.tvp")), std::string::npos);
  EXPECT_NE(run.output.find(project_.path("opamp.lib.bak")), std::string::npos);
  EXPECT_NE(run.output.find("their former contents go to " + saved()), std::string::npos);
}

TEST_F(Fix, TellsProgramsWhatItDid) {
  const auto planned = project_.checkedAsJson({"--fix", "--dry-run"});
  EXPECT_EQ(planned["fix"]["done"], false);
  const auto json = project_.checkedAsJson({"--fix"});
  EXPECT_EQ(json["fix"]["done"], true);
  EXPECT_EQ(json["fix"]["savedTo"], saved());
  EXPECT_EQ(json["fix"]["rewritten"].size(), 4U);
  EXPECT_EQ(json["fix"]["removed"].size(), 2U);
  const auto again = project_.checkedAsJson({"--fix"});
  EXPECT_EQ(again["fix"]["savedTo"], "");
  EXPECT_EQ(again["fix"]["rewritten"].size() + again["fix"]["removed"].size(), 0U);
  EXPECT_EQ(project_.checkedAsJson()["fix"], nullptr);
}

TEST_F(Fix, KeepsEarlierSavedFiles) {
  ASSERT_EQ(fix().status, 0);
  const auto first = snapshotOf(saved());
  project_.write("opamp.lib.bak", "again");
  ASSERT_EQ(fix().status, 0);
  EXPECT_EQ(snapshotOf(saved()), first);
  EXPECT_EQ(contentOf(project_.path("amp-TervixSaved-2/opamp.lib.bak")), "again");
}

TEST_F(Fix, OnlyPrintsInADryRun) {
  const EntriesOnDisk before = entriesOf(project_.folder());
  const ToolRun run = fix({"--dry-run", "--strict"});
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("nothing is done"), std::string::npos) << run.output;
  expectUntouched(before, entriesOf(project_.folder()), "a dry run");
}

TEST_F(Fix, CountsWhatIsLeft) {
  project_.append(kList, "* a note\n");
  EXPECT_EQ(fix({"--strict"}).status, 0);
  project_.replace("amp.tvp", "\"TOP-tran\"", "\"TOP-x\"");
  EXPECT_EQ(fix({"--strict"}).status, 1);
  project_.replace("amp.tvp", "./opamp.lib", "./gone.lib");
  EXPECT_EQ(fix().status, 3);
}

TEST_F(Fix, LeavesFilesBehindLinksAlone) {
  const std::string elsewhere = project_.path("../elsewhere.inc");
  project_.write("../elsewhere.inc", ".INC \"" + project_.path("local.inc") + "\"\n");
  project_.remove(kList);
  fs::create_symlink(elsewhere, project_.path(kList));
  fs::create_symlink("opamp.lib", project_.path("link.bak"));
  const std::string before = contentOf(elsewhere);
  ASSERT_EQ(fix().status, 3); // "link.bak" has no original
  EXPECT_EQ(contentOf(elsewhere), before);
  EXPECT_TRUE(fs::is_symlink(project_.path(kList)));
  EXPECT_TRUE(fs::is_symlink(project_.path("link.bak")));
}

TEST(FixOfAProjectBehindALink, FindsItsFilesByTheirFullPaths) {
  const CheckedSample project(1);
  project.replace("amp.tvp", "\"npn.lib\"", "\"" + project.path("npn.lib") + "\"");
  const std::string link = project.path("../link");
  fs::create_directory_symlink(project.path("."), link);
  EXPECT_EQ(runTool({"check", link + "/amp.tvp", "--fix", "--strict"}).status, 0);
  EXPECT_NE(project.content("amp.tvp").find("[\"./npn.lib\"]"), std::string::npos);
}

TEST_F(Fix, FindsAValueBehindWhichItsKeyStandsOnceMore) {
  project_.append(kDc, "DataFile = \"\"\n");
  ASSERT_EQ(fix().status, 0);
  EXPECT_EQ(findingsIn(project_.checkedAsJson()),
            (Found{"repeated-key amp-TervixFiles/BIAS/dc.sim:13"}));
}

TEST_F(Fix, RegistersNothingInAProjectFileBehindALink) {
  const std::string elsewhere = project_.path("../elsewhere.tvp");
  fs::rename(project_.path("amp.tvp"), elsewhere);
  fs::create_symlink(elsewhere, project_.path("amp.tvp"));
  const std::string before = contentOf(elsewhere);
  const ToolRun run = fix();
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(contentOf(elsewhere), before);
  EXPECT_FALSE(isFile(project_.path("opamp.lib.bak"))); // repairs of other files are made
}

// It would be looked for under the schematic as the design spells it.
TEST_F(Fix, RegistersNoProfileInAFolderOfAnotherCase) {
  project_.rename("amp-TervixFiles/BIAS", "amp-TervixFiles/Bias");
  const std::string moved = "amp-TervixFiles/Bias/dc.sim";
  const auto json = project_.checkedAsJson();
  bool isFound = false;
  for (const auto& finding : json["findings"])
    if (finding["code"] == "unregistered-profile" && finding["path"] == moved) {
      isFound = true;
      EXPECT_EQ(finding["fixable"], false);
    }
  EXPECT_TRUE(isFound);
}

TEST_F(Fix, SavesToAFolderOfItsOwn) {
  project_.write("amp-TervixSaved-1/amp.tvp", "");
  ASSERT_EQ(fix().status, 0);
  EXPECT_TRUE(isFile(project_.path("amp-TervixSaved-2/amp.tvp")));
}

TEST_F(Fix, RefusesWhileAnInterruptedChangeCannotBeSettled) {
  project_.write(".amp.tvp.tervix-change", "no journal");
  const auto before = snapshotOf(project_.folder());
  EXPECT_EQ(fix().status, 1);
  EXPECT_EQ(snapshotOf(project_.folder()), before);
}

TEST(FixOfNothing, MakesNoFolder) {
  const CheckedSample project(0);
  const EntriesOnDisk before = entriesOf(project.folder());
  EXPECT_EQ(project.check({"--fix"}).output, "nothing found\n--fix has nothing to repair\n");
  expectUntouched(before, entriesOf(project.folder()), "repairing nothing");
}

// Where profiles are found on disk none has to be registered.
TEST(FixOfFrontEnd1, RemovesBackupsAndFullPaths) {
  for (const std::size_t sample : {2U, 3U}) {
    const CheckedSample project(sample);
    const std::string name = sample == 2 ? "amp.tvp" : "flt.tvp";
    project.replace(name, "\"supply.inc\"", "\"" + project.path("supply.inc") + "\"");
    project.write(name + ".bak", "x");
    const auto before = snapshotOf(project.folder());
    EXPECT_EQ(project.check({"--fix", "--strict"}).status, 0);
    EXPECT_EQ(findingsIn(project.checkedAsJson()), Found());
    const std::string saved = project.path(name.substr(0, 3) + "-TervixSaved-1");
    fs::copy(saved, project.path("."),
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::remove_all(saved);
    EXPECT_EQ(snapshotOf(project.folder()), before);
  }
}

} // namespace
