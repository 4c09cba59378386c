#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ProjectBuilder.h"
#include "tests/tools/Sample.h"
#include "tests/tools/ToolRun.h"

// A project of which something is missing is shown, and what is missing with it.

using namespace tervix::testing;

namespace {

namespace fs = std::filesystem;

class IncompleteProject : public ::testing::Test {
protected:
  std::string tree() const { return shown({copy_.project()}); }
  nlohmann::ordered_json json() const { return shownAsJson({copy_.project()}); }

  void expectLine(const std::string& line) const {
    const std::string text = tree();
    EXPECT_NE(text.find("-- " + line + "\n"), std::string::npos) << text;
  }

  SampleCopy copy_{allSamples().at(0)};
};

TEST_F(IncompleteProject, MayLackItsDesign) {
  fs::remove(copy_.path("amp.dsn"));
  expectLine("design        none  (the project file lists no .dsn file that exists)");
  EXPECT_EQ(json()["design"], nullptr);
  EXPECT_EQ(json()["schematics"].size(), 0U);
  EXPECT_EQ(json()["rootSchematic"], "");
  EXPECT_EQ(json()["designLevelFiles"].size(), 3U);
}

TEST_F(IncompleteProject, MayListNoDesign) {
  writeFile(copy_.project(), "");
  EXPECT_EQ(tree(), "amp  project of type 2 (a folder for each profile), front end 2\n"
                    "|-- project file  amp.tvp\n"
                    "`-- design        none  (the project file lists no .dsn file that exists)\n");
  EXPECT_EQ(json()["outputFile"], nullptr);
}

TEST_F(IncompleteProject, MayLackAProfileThatItLists) {
  fs::remove(copy_.path("amp-TervixFiles/TOP/ac.sim"));
  expectLine("profile file  ./amp-TervixFiles/TOP/ac.sim  (missing)");
  EXPECT_EQ(tree().find("TOP-ac"), std::string::npos);
  EXPECT_EQ(json()["unusedProfiles"],
            (nlohmann::ordered_json{{{"name", "./amp-TervixFiles/TOP/ac.sim"},
                                     {"path", copy_.path("amp-TervixFiles/TOP/ac.sim")},
                                     {"exists", false}}}));
}

TEST_F(IncompleteProject, MayListAProfileFileThatIsNotValid) {
  writeFile(copy_.path("amp-TervixFiles/TOP/ac.sim"), "");
  expectLine("profile file  ./amp-TervixFiles/TOP/ac.sim  (not a profile of this project)");
  EXPECT_EQ(json()["unusedProfiles"][0]["exists"], true);
}

TEST_F(IncompleteProject, HasNoActiveProfileWhenThatIsMissing) {
  fs::remove(copy_.path("amp-TervixFiles/TOP/tran.sim"));
  expectLine("profile file  ./amp-TervixFiles/TOP/tran.sim  (missing)");
  EXPECT_EQ(tree().find("active"), std::string::npos);
  EXPECT_EQ(json()["activeProfile"], "");
}

TEST_F(IncompleteProject, MayLackItsOutputFile) {
  fs::remove(copy_.path("amp-TervixFiles/TOP/tran/tran.out"));
  expectLine("output file   ./amp-TervixFiles/TOP/tran/tran.out  (missing)");
  EXPECT_EQ(json()["outputFile"]["exists"], false);
}

TEST_F(IncompleteProject, MayLackDesignLevelFiles) {
  fs::remove(copy_.path("opamp.lib"));
  expectLine("library   opamp.lib  (missing)");
  EXPECT_EQ(json()["designLevelFiles"][0]["exists"], false);
}

TEST_F(IncompleteProject, MayLackProfileLevelFiles) {
  fs::remove(copy_.path("amp-TervixFiles/TOP/tran/cable.lib"));
  expectLine("library   .\\cable.lib  (missing)");
  EXPECT_EQ(json()["schematics"][0]["profiles"][0]["profileLevelFiles"][0]["exists"], false);
}

TEST_F(IncompleteProject, MayLackEveryFileOfASchematicAndAProfile) {
  fs::remove(copy_.path("amp-TervixFiles/BIAS/BIAS.net"));
  fs::remove_all(copy_.path("amp-TervixFiles/BIAS/dc"));
  const std::string text = tree();
  EXPECT_NE(text.find("`-- schematic BIAS  in amp-TervixFiles/BIAS\n"
                      "    |-- on disk     none\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("    `-- profile BIAS-dc  amp-TervixFiles/BIAS/dc.sim\n"
                      "        |-- on disk     none\n"),
            std::string::npos)
      << text;
}

TEST_F(IncompleteProject, MayHaveASchematicWithoutProfiles) {
  fs::remove(copy_.path("amp-TervixFiles/BIAS/dc.sim"));
  EXPECT_EQ(json()["schematics"][1]["profiles"], nlohmann::ordered_json::array());
}

// A folder is no file, whatever its name.
TEST_F(IncompleteProject, HasNoFileWhereAFolderStands) {
  fs::remove(copy_.path("opamp.lib"));
  fs::create_directory(copy_.path("opamp.lib"));
  expectLine("library   opamp.lib  (missing)");
}

TEST(CompleteProject, HasNothingMissing) {
  for (const Sample& sample : allSamples()) {
    const SampleCopy copy(sample);
    EXPECT_EQ(shownAsJson({copy.project()})["unusedProfiles"], nlohmann::ordered_json::array());
    EXPECT_EQ(shown({copy.project()}).find("(missing)"), std::string::npos) << sample;
  }
}

} // namespace
