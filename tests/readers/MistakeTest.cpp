// Values of the wrong kind, and the life of the recorded mistake.

#include "DesignFile.h"
#include "ReaderFixture.h"

namespace {

class WrongKindTest : public ReaderFixture {
protected:
  std::string project(std::string_view content) { return folder.write("p.tvp", content); }
};

TEST_F(WrongKindTest, ListMayNotBeANumber) {
  const std::string file = project("[\"Tervix Resources\"]\n\"Model Libraries\" = 3\n");
  EXPECT_NE(readItem(file, "Tervix Resources", "Model Libraries"), 0);
  expectUntouchedOutputs();
  expectMistake("expected a list of file names for \"Model Libraries\", found an integer", 2, 21);
}

TEST_F(WrongKindTest, ListMayNotBeASingleText) {
  EXPECT_NE(readSection(project("[\"Design Resources\"]\nFiles = \"amp.dsn\"\n")), 0);
  expectUntouchedOutputs();
  expectMistake("expected a list of file names for \"Files\", found text", 2, 9);
}

TEST_F(WrongKindTest, ListElementMustBeText) {
  EXPECT_NE(readSection(project("[\"Design Resources\"]\nFiles = [\"a.dsn\",\n  true]\n")), 0);
  expectUntouchedOutputs();
  expectMistake("expected only file names in the list for \"Files\", found true or false", 3, 3);
}

TEST_F(WrongKindTest, ColumnCountsCharactersAndNotBytes) {
  EXPECT_NE(readSection(project("[\"Design Resources\"]\nFiles = [\"été.dsn\", 1979-05-27]\n")), 0);
  expectMistake("expected only file names in the list for \"Files\", found a date", 2, 21);
}

TEST_F(WrongKindTest, ListMayNotBeATableMadeByALongerHeader) {
  EXPECT_NE(readSection(project("\n[\"Design Resources\".Files.deep]\n")), 0);
  expectUntouchedOutputs();
  const auto mistake = tervix::formats::lastMistake();
  ASSERT_TRUE(mistake);
  EXPECT_EQ(mistake->text, "expected a list of file names for \"Files\", found a table");
  EXPECT_EQ(mistake->line, 2U);
  EXPECT_GE(mistake->column, 1U);
}

TEST_F(WrongKindTest, ListMayNotBeATableMadeByADottedKey) {
  EXPECT_NE(readSection(project("[\"Design Resources\"]\nFiles.first = \"a.dsn\"\n")), 0);
  const auto mistake = tervix::formats::lastMistake();
  ASSERT_TRUE(mistake);
  EXPECT_EQ(mistake->text, "expected a list of file names for \"Files\", found a table");
  EXPECT_EQ(mistake->line, 2U);
  EXPECT_GE(mistake->column, 1U);
}

TEST_F(WrongKindTest, SectionMayNotBeAList) {
  EXPECT_NE(readSection(project("\"Design Resources\" = [\"amp.dsn\"]\n")), 0);
  expectUntouchedOutputs();
  expectMistake("expected a table for \"Design Resources\", found a list", 1, 22);
}

TEST_F(WrongKindTest, SectionMayNotBeAListOfTables) {
  EXPECT_NE(readSection(project("[[\"Design Resources\"]]\nFiles = [\"amp.dsn\"]\n")), 0);
  expectUntouchedOutputs();
  expectMistake("expected a table for \"Design Resources\", found a list of tables", 1, 1);
}

TEST_F(WrongKindTest, TextMayNotBeAList) {
  EXPECT_NE(readOutputFile(project("[\"Design Resources\"]\nTERVIX_Output_File = []\n")), 0);
  expectUntouchedOutputs();
  expectMistake("expected text in quotes for \"TERVIX_Output_File\", found a list", 2, 22);
}

TEST_F(WrongKindTest, TextMayNotHoldANul) {
  EXPECT_NE(readOutputFile(project("[\"Design Resources\"]\nTERVIX_Output_File = \"a\\u0000b\"\n")),
            0);
  expectUntouchedOutputs();
  expectMistake("expected text in quotes for \"TERVIX_Output_File\", found text with a NUL in it",
                2, 22);
}

TEST_F(WrongKindTest, WrongActiveProfileLeavesTheListUntouched) {
  const std::string file =
      project("[\"Simulation Profiles\"]\nFiles = [\"tran.sim\"]\nActive = 07:32:00\n");
  EXPECT_NE(readProfiles(file), 0);
  expectUntouchedOutputs();
  expectMistake("expected text in quotes for \"Active\", found a time", 3, 10);
}

TEST_F(WrongKindTest, WrongProfileListLeavesTheActiveNameUntouched) {
  const std::string file =
      project("[\"Simulation Profiles\"]\nFiles = {a = 1}\nActive = \"TOP-tran\"\n");
  EXPECT_NE(readProfiles(file), 0);
  expectUntouchedOutputs();
  expectMistake("expected a list of file names for \"Files\", found a table", 2, 9);
}

TEST_F(WrongKindTest, WhatIsNotAskedForMayBeOfAnyKind) {
  EXPECT_EQ(readSection(project("Other = 1\n[\"Design Resources\"]\nTERVIX_Output_File = 2\n")), 0);
}

using LastMistakeTest = ReaderFixture;

TEST_F(LastMistakeTest, NamesTheFile) {
  const std::string absent = folder.path("absent.tvp");
  EXPECT_NE(readSection(absent), 0);
  EXPECT_EQ(tervix::formats::lastMistake()->file, absent);
  const std::string broken = folder.write("broken.tvp", "=\n");
  EXPECT_NE(readSection(broken), 0);
  EXPECT_EQ(tervix::formats::lastMistake()->file, broken);
}

TEST_F(LastMistakeTest, StaysUntilTheNextReadOfEitherFormat) {
  const std::string good = folder.write("good.toml", "");
  EXPECT_NE(readSection(folder.path("absent.tvp")), 0);
  EXPECT_TRUE(tervix::formats::lastMistake());
  EXPECT_TRUE(tervix::formats::lastMistake());
  EXPECT_TRUE(tervix::formats::readDesign(good));
  EXPECT_FALSE(tervix::formats::lastMistake());

  EXPECT_FALSE(tervix::formats::readDesign(folder.path("absent.dsn")));
  EXPECT_TRUE(tervix::formats::lastMistake());
  EXPECT_EQ(readSection(good), 0);
  EXPECT_FALSE(tervix::formats::lastMistake());
}

} // namespace
