#include "DesignFile.h"
#include "DesignReader.h"
#include "ReaderFixture.h"

namespace {

class DesignFileTest : public ReaderFixture {
protected:
  int readDesign(std::string_view content) {
    return reader.read(folder.write("amp.dsn", content), text, files);
  }

  DesignReader reader;
};

TEST_F(DesignFileTest, SchematicsComeInOrderWithTheRoot) {
  EXPECT_EQ(readDesign("[Design]\nSchematics = [\"TOP\", \"BIAS\"]\nRoot = \"TOP\"\n"), 0);
  EXPECT_EQ(files, (Texts{"before", "TOP", "BIAS"}));
  EXPECT_EQ(text, "TOP");
  EXPECT_FALSE(tervix::formats::lastMistake());
}

TEST_F(DesignFileTest, RootNeedNotBeListed) {
  EXPECT_EQ(readDesign("[Design]\nSchematics = [\"BIAS\"]\nRoot = \"TOP\"\n"), 0);
  EXPECT_EQ(files, (Texts{"before", "BIAS"}));
  EXPECT_EQ(text, "TOP");
}

TEST_F(DesignFileTest, DesignWithoutItemsReadsAsEmpty) {
  EXPECT_EQ(readDesign("[Design]\n"), 0);
  EXPECT_EQ(files, Texts{"before"});
  EXPECT_EQ(text, "");
}

TEST_F(DesignFileTest, FileWithoutDesignReadsAsEmpty) {
  EXPECT_EQ(readDesign("# nothing yet\n"), 0);
  EXPECT_EQ(files, Texts{"before"});
  EXPECT_EQ(text, "");
}

TEST_F(DesignFileTest, SchematicsMustBeAList) {
  EXPECT_NE(readDesign("[Design]\nSchematics = \"TOP\"\nRoot = \"TOP\"\n"), 0);
  expectUntouchedOutputs();
  expectMistake("expected a list of schematic names for \"Schematics\", found text", 2, 14);
}

TEST_F(DesignFileTest, WrongRootLeavesTheSchematicsUntouched) {
  EXPECT_NE(readDesign("[Design]\nSchematics = [\"TOP\"]\nRoot = [\"TOP\"]\n"), 0);
  expectUntouchedOutputs();
  expectMistake("expected text in quotes for \"Root\", found a list", 3, 8);
}

TEST_F(DesignFileTest, DesignMustBeATable) {
  EXPECT_NE(readDesign("Design = 1.5\n"), 0);
  expectUntouchedOutputs();
  expectMistake("expected a table for \"Design\", found a number", 1, 10);
}

TEST_F(DesignFileTest, SyntaxErrorIsToldWithItsPlace) {
  EXPECT_NE(readDesign("[Design]\nSchematics = [\"TOP\" \"BIAS\"]\n"), 0);
  expectUntouchedOutputs();
  expectMistakeAt(2, 21);
}

TEST_F(DesignFileTest, MissingFileIsAMistakeWithoutALine) {
  EXPECT_NE(reader.read(folder.path("absent.dsn"), text, files), 0);
  expectUntouchedOutputs();
  expectMistake("the file does not exist", 0, 0);
}

TEST_F(DesignFileTest, FormatsGiveTheSameAsAValue) {
  const auto design = tervix::formats::readDesign(
      folder.write("amp.dsn", "[Design]\nSchematics = [\"TOP\"]\nRoot = \"TOP\"\n"));
  ASSERT_TRUE(design);
  EXPECT_EQ(design->schematics, Texts{"TOP"});
  EXPECT_EQ(design->root, "TOP");
}

using UnloadedDesignReaderTest = ReaderFixture;

TEST_F(UnloadedDesignReaderTest, MistakeOutlivesTheReaderLibrary) {
  const std::string absent = folder.path("absent.dsn");
  EXPECT_NE(DesignReader().read(absent, text, files), 0);
  const auto mistake = tervix::formats::lastMistake();
  ASSERT_TRUE(mistake);
  EXPECT_EQ(mistake->file, absent);
}

} // namespace
