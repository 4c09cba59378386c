#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "tests/support/System.h"
#include "tests/tools/EntriesOnDisk.h"
#include "tests/tools/check/BrokenProjects.h"
#include "tools/tervix/check/Finding.h"

// What is broken is found, and nothing else.

using namespace tervix::testing;
using tervix::tool::FindingKind;
using tervix::tool::findingKinds;
using tervix::tool::Severity;

namespace {

using Found = std::vector<std::string>;

Severity severityOf(const std::string& code) {
  for (const FindingKind& kind : findingKinds())
    if (code == kind.slug)
      return kind.severity;
  ADD_FAILURE() << "no finding has the code " << code;
  return Severity::kNote;
}

class OneThingBroken : public ::testing::TestWithParam<BrokenProject> {
protected:
  void SetUp() override { GetParam().breakIt(project_); }

  CheckedSample project_{GetParam().sample};
};

TEST_P(OneThingBroken, IsTheOneFinding) {
  EXPECT_EQ(findingsIn(project_.checkedAsJson()), Found{GetParam().finding});
}

TEST_P(OneThingBroken, GivesTheExitStatusOfItsSeverity) {
  const Severity severity = severityOf(GetParam().code());
  const bool isError = severity == Severity::kError;
  EXPECT_EQ(project_.check().status, isError ? 3 : 0);
  EXPECT_EQ(project_.check({"--strict"}).status, isError                          ? 3
                                                 : severity == Severity::kWarning ? 1
                                                                                  : 0);
}

TEST_P(OneThingBroken, IsLeftAsItIs) {
  const EntriesOnDisk before = entriesOf(project_.folder());
  project_.check();
  project_.check({"--json", "--strict"});
  project_.check({"--fix", "--dry-run"});
  expectUntouched(before, entriesOf(project_.folder()), "checking");
}

INSTANTIATE_TEST_SUITE_P(All, OneThingBroken, ::testing::ValuesIn(brokenProjects()),
                         [](const auto& broken) { return broken.param.name; });

TEST(BrokenProjects, CoverEveryCode) {
  std::set<std::string> covered;
  for (const BrokenProject& broken : brokenProjects())
    covered.insert(broken.code());
  std::set<std::string> known;
  for (const FindingKind& kind : findingKinds())
    known.insert(kind.slug);
  EXPECT_EQ(covered, known);
}

TEST(SecondFileOfAProfile, IsToldWithTheFirst) {
  const CheckedSample project(kFlat);
  project.write("copy.sim", project.content("amp-TOP-ac.sim"));
  project.replace("amp.tvp", "\"./amp-TOP-ac.sim\"", "\"./amp-TOP-ac.sim\", \"./copy.sim\"");
  EXPECT_EQ(project.checkedAsJson()["findings"].at(0)["message"],
            R"("amp-TOP-ac.sim" is profile "ac" of schematic "TOP" already)");
}

// A piece of a line is a line to the library.
TEST(LongLineOfAnIncludeList, IsLoadedInPieces) {
  const CheckedSample project(kSimulation);
  const std::string list = "amp-TervixFiles/TOP/tran/tran_profile.inc";
  project.append(list, std::string(1023, '*') + ".INC \"./gone.inc\"\n.INC \"last.inc\"\n");
  EXPECT_EQ(findingsIn(project.checkedAsJson()),
            (Found{"missing-include " + list + ":5", "missing-include " + list + ":6",
                   "dropped-line " + list + ":5"}));
}

// What is found while nobody but root may look into a file or folder.
class Forbidden : public ::testing::Test {
protected:
  void SetUp() override {
    if (!UnprivilegedUser().isInForce())
      GTEST_SKIP() << "root cannot become another user here";
  }

  static Found findingsWithout(const CheckedSample& project, const std::string& name) {
    std::filesystem::permissions(project.path(name), std::filesystem::perms::none);
    Found found;
    {
      const UnprivilegedUser user;
      found = findingsIn(project.checkedAsJson());
    }
    std::filesystem::permissions(project.path(name), std::filesystem::perms::owner_all);
    return found;
  }
};

TEST_F(Forbidden, FileOfTheDesignIsTold) {
  const CheckedSample project(kFlat);
  project.write("TOP.sch", "");
  project.replace("amp.tvp", "\"amp.dsn\"", "\"amp.dsn\", \"TOP.sch\"");
  EXPECT_EQ(findingsWithout(project, "TOP.sch"), Found{"unreadable-file amp.tvp:5"});
}

TEST_F(Forbidden, DesignIsNotOneWithoutSchematics) {
  const CheckedSample project(kFlat);
  const Found found = findingsWithout(project, "amp.dsn");
  ASSERT_FALSE(found.empty());
  EXPECT_EQ(found.front(), "unreadable-file amp.dsn");
}

TEST_F(Forbidden, FolderIsNoEmptyOneOfAProfile) {
  const CheckedSample project(kSimulation);
  project.write("amp-TervixFiles/TOP/lost/precious", "");
  EXPECT_EQ(findingsWithout(project, "amp-TervixFiles/TOP/lost"),
            Found{"unreadable-file amp-TervixFiles/TOP/lost"});
}

TEST(SchematicWithoutAName, IsNone) {
  for (const SampleNumber sample : {kSimulation, kFlat}) {
    const CheckedSample project(sample);
    project.replace("amp.dsn", "\"TOP\"", "\"\", \"TOP\"");
    EXPECT_EQ(findingsIn(project.checkedAsJson()), Found());
  }
}

// All that can be broken side by side in one project.
TEST(EverythingBroken, IsFoundWorstFirst) {
  const CheckedSample project(kFlat);
  project.replace("amp.tvp", "\"npn.lib\"",
                  "\"gone.lib\", \"NPN.lib\", \"folder.lib\", \"../far.lib\", \"" +
                      project.path("npn.lib") + "\", 'npn.lib'");
  project.replace("amp.tvp", "\"sine.stl\"", "\"gone.stl\"");
  project.replace("amp.tvp", "\"supply.inc\"", "\"gone.inc\"");
  project.replace("amp.tvp", "amp-TOP-tran.out", "gone.out");
  project.replace("amp.tvp", "\"./amp-TOP-ac.sim\"",
                  "\"gone.sim\", \"copy.sim\", \"old.sim\", \"bad.sim\", \"amp-OLD-x.sim\", "
                  "\"old.sim\"");
  project.replace("amp.tvp", "\"TOP-tran\"", "\"TOP-x\"");
  project.replace("amp-TOP-tran.sim", "amp-TOP-tran.sim.cir", "amp.cir");
  project.append("amp-TOP-tran.sim", "OutFile = \"amp-TOP-tran.2.out\"\n");
  project.write("copy.sim", "ProfileName = \"tran\"\nRootSchematics = \"TOP\"\n");
  project.write("old.sim", "ProfileName = \"new\"\nRootSchematics = \"TOP\"\n");
  project.write("bad.sim", "ProfileName = \"bad\"\n");
  project.write("amp-OLD-x.sim", "ProfileName = \"x\"\nRootSchematics = \"OLD\"\n");
  project.makeFolder("folder.lib");
  project.makeFolder("old-TervixFiles");
  project.write("../far.lib", "");
  project.append("npn.lib", ".lib npn.lib\n.lib gone.lib\n");
  project.write("lost.sim.bak", "");
  project.write("npn.lib.bak", "");
  project.write(".tervix-1", "");
  project.write("aux", "");
  project.write("Bad.sim", "");
  project.write("amp-TOP-former.dat", "");
  const auto json = project.checkedAsJson();
  EXPECT_EQ(findingsIn(json), (Found{"interrupted-change .tervix-1",
                                     "unknown-schematic amp-OLD-x.sim",
                                     "missing-library amp.tvp:10",
                                     "case-differs amp.tvp:10",
                                     "unreadable-file amp.tvp:10",
                                     "missing-stimulus amp.tvp:11",
                                     "missing-include amp.tvp:12",
                                     "missing-profile amp.tvp:15",
                                     "listed-twice amp.tvp:10",
                                     "absolute-path amp.tvp:10",
                                     "listed-twice amp.tvp:15",
                                     "unknown-active amp.tvp:16",
                                     "missing-output amp.tvp:6",
                                     "outside-reference amp.tvp:10",
                                     "invalid-profile bad.sim",
                                     "case-twins bad.sim",
                                     "same-profile copy.sim",
                                     "lost-original lost.sim.bak",
                                     "unresolved-include npn.lib:4",
                                     "include-cycle npn.lib:3",
                                     "misplaced-profile old.sim",
                                     "unregistered-profile amp-TOP-ac.sim",
                                     "key-disagrees amp-TOP-tran.sim:7",
                                     "repeated-key amp-TOP-tran.sim:14",
                                     "dotted-name amp-TOP-tran.sim:14",
                                     "windows-name aux",
                                     "stale-backup npn.lib.bak",
                                     "orphan-folder old-TervixFiles",
                                     "former-name amp-TOP-former.dat"}));
  EXPECT_EQ(json["errors"], 13);
  EXPECT_EQ(json["warnings"], 13);
  EXPECT_EQ(json["notes"], 3);
}

} // namespace
