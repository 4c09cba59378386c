#include <filesystem>

#include <gtest/gtest.h>

#include "tests/tools/check/CheckFixture.h"

// Which lines of a netlist name a file, and which file.

using namespace tervix::testing;

namespace {

using Found = std::vector<std::string>;

class IncludeLines : public ::testing::Test {
protected:
  // What is found in a library with these lines.
  Found foundIn(const std::string& lines) const {
    project_.write("npn.lib", lines);
    return findingsIn(project_.checkedAsJson());
  }

  CheckedSample project_{1};
};

TEST_F(IncludeLines, AreFoundInAnyCaseAndForm) {
  EXPECT_EQ(foundIn(".inc a.x\n.INCLUDE \"b.x\"\n  .Lib 'c.x' tt\n.StmLib\td.x\r\n.inc\"e.x\"\n"
                    ".lib f.x;comment\n.include g.x ; comment\n.lib h/x tt"),
            (Found{"unresolved-include npn.lib:1", "unresolved-include npn.lib:2",
                   "unresolved-include npn.lib:3", "unresolved-include npn.lib:4",
                   "unresolved-include npn.lib:5", "unresolved-include npn.lib:6",
                   "unresolved-include npn.lib:7", "unresolved-include npn.lib:8"}));
}

TEST_F(IncludeLines, AreNoCommentsAndNoOtherWords) {
  EXPECT_EQ(foundIn("* .inc a.x\n;.inc a.x\n.incl a.x\n.ends .inc a.x\nR1 .lib a.x\n.inc\n.lib\n"
                    ".include \"\"\n.inc $MODELS/a.x\n.including a.x\n"),
            Found());
}

TEST_F(IncludeLines, MayBeginASectionOfTheLibrary) {
  EXPECT_EQ(foundIn(".lib typical\n.model x npn\n.endl typical\n"), Found());
}

TEST_F(IncludeLines, BeginASectionWhereOnlyAFolderOrAnotherCaseHasItsName) {
  project_.write("TYPICAL", "");
  project_.makeFolder("Worst");
  EXPECT_EQ(foundIn(".lib typical\n.lib worst\n.lib Worst\n"), Found());
}

TEST_F(IncludeLines, MayFollowAByteOrderMark) {
  EXPECT_EQ(foundIn("\xef\xbb\xbf.inc gone.inc\n"), (Found{"unresolved-include npn.lib:1"}));
}

TEST_F(IncludeLines, EndANameThatLacksItsSecondQuote) {
  EXPECT_EQ(foundIn(".inc \"supply.inc\r\n.inc 'supply.inc\n.inc \"supply.inc"), Found());
}

TEST_F(IncludeLines, NameAFileWithoutAnEndingWhereThereIsOne) {
  project_.write("typical", ".inc gone.inc\n");
  EXPECT_EQ(foundIn(".lib typical\n"), (Found{"unresolved-include typical:1"}));
}

TEST_F(IncludeLines, StartFromTheFolderOfTheirFile) {
  project_.write("models/a.lib", ".inc npn.inc\n.inc ../supply.inc\n.inc .\\sub\\b.inc\n");
  project_.write("models/npn.inc", "");
  project_.write("models/sub/b.inc", ".inc ../npn.inc\n.inc npn.inc\n");
  EXPECT_EQ(foundIn(".lib models\\a.lib\n"), (Found{"unresolved-include models/sub/b.inc:2"}));
}

TEST_F(IncludeLines, OfNetlistsAreFollowed) {
  project_.append("amp-TOP.net", ".inc gone.net\n");
  project_.append("amp-TOP-ac.sim.cir", ".inc gone.cir\n");
  EXPECT_EQ(findingsIn(project_.checkedAsJson()), (Found{"unresolved-include amp-TOP-ac.sim.cir:23",
                                                         "unresolved-include amp-TOP.net:15"}));
}

TEST_F(IncludeLines, InEveryCircleAreToldOnce) {
  project_.write("a.lib", ".lib b.lib\n.lib c.lib\n.lib npn.lib\n");
  project_.write("b.lib", ".lib a.lib\n");
  project_.write("c.lib", ".lib c.lib\n");
  EXPECT_EQ(foundIn(".lib a.lib\n.lib b.lib\n"),
            (Found{"include-cycle a.lib:3", "include-cycle b.lib:1", "include-cycle c.lib:1"}));
}

TEST_F(IncludeLines, MayTakeASectionOfTheirOwnLibrary) {
  project_.write("b.lib", ".lib npn.lib base ; a comment\n");
  EXPECT_EQ(foundIn(".lib typical\n.lib 'npn.lib' base\n.lib b.lib\n.endl typical\n"
                    ".lib base\n.model x npn\n.endl\n"),
            Found());
}

TEST_F(IncludeLines, CloseACircleOfSections) {
  project_.write("b.lib", ".lib fast\n.lib npn.lib \"TYPICAL\"\n.endl\n");
  EXPECT_EQ(foundIn(".lib typical\n.lib b.lib fast\n.endl\n.lib slow\n.lib npn.lib slow\n"),
            (Found{"include-cycle npn.lib:2", "include-cycle npn.lib:5"}));
}

TEST_F(IncludeLines, ReadAFileOnceWhateverItsName) {
  std::filesystem::create_symlink(project_.path("supply.inc"), project_.path("link.inc"));
  project_.append("supply.inc", ".inc gone.inc\n");
  EXPECT_EQ(foundIn(".inc link.inc\n").size(), 1U);
}

} // namespace
