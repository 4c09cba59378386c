#include <filesystem>

#include "tests/model/VariantTree.h"
#include "tests/support/System.h"

// The include list "_profile.inc" on disk.

namespace tervix::testing {
namespace {

class IncludeList : public VariantTree {
protected:
  // The profile opened with this include list.
  CTervixProfile& opened(const std::string& content) {
    writeList(content);
    return open();
  }
  Files libraries(const std::string& content) {
    return filesOf(opened(content), VARIANTFILE_TYPE_LIBRARY);
  }

  std::string missing() const { return "File \"" + listPath() + "\" does not exist."; }
};

TEST_F(IncludeList, IsReadWhenTheProfileIsOpened) {
  CTervixProfile& profile = opened(".INC\t\"C:\\i\\a.inc\" \n.LIB\t\"C:\\l\\b.lib\" \n"
                                   ".STMLIB\t\"s.stl\" \n.LIB\t\"c.lib\" \n");
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_INCLUDE), Files{"C:\\i\\a.inc"});
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), (Files{"C:\\l\\b.lib", "c.lib"}));
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_STIMULUS), Files{"s.stl"});
  EXPECT_TRUE(isUpdated(profile));
}

TEST_F(IncludeList, TakesKeywordsInAnyCase) {
  EXPECT_EQ(libraries(".Lib \"C:\\a\\x.lib\"\n"), Files{"C:\\a\\x.lib"});
  EXPECT_EQ(filesOf(opened(".stmLIB \"x.stl\"\n"), VARIANTFILE_TYPE_STIMULUS), Files{"x.stl"});
  EXPECT_EQ(filesOf(opened(".Inc \"x.inc\"\n"), VARIANTFILE_TYPE_INCLUDE), Files{"x.inc"});
}

TEST_F(IncludeList, IgnoresALineWithoutQuotes) {
  EXPECT_EQ(libraries(".Lib C:\\a\\x.lib\n.lib \"\"\n.lib\n"), Files{});
}

TEST_F(IncludeList, IgnoresAPathOfAnotherKind) {
  CTervixProfile& profile = opened(".stmlib \"x.lib\"\n.inc \"x.lib\"\n.lib \"x.inc\"\n");
  for (const VARIANTFILE_TYPE type : kEveryKind)
    EXPECT_EQ(filesOf(profile, type), Files{});
}

TEST_F(IncludeList, DropsAnEntryWhoseExtensionIsInUpperCase) {
  EXPECT_EQ(libraries(".lib \"X.LIB\"\n.lib \"y.lib\"\n"), Files{"y.lib"});
}

TEST_F(IncludeList, IgnoresEveryOtherLine) {
  EXPECT_EQ(libraries("* comment\n\n .lib \"indented.lib\"\nlib \"x.lib\"\n.param \"x.lib\"\n"),
            Files{});
}

TEST_F(IncludeList, TakesTheTextBetweenTheFirstTwoQuotes) {
  EXPECT_EQ(libraries(".library and more \"a b %s.lib\" \"c.lib\"\n"), Files{"a b %s.lib"});
}

TEST_F(IncludeList, KeepsEntriesThatAreListedTwice) {
  EXPECT_EQ(libraries(".lib \"x.lib\"\n.lib \"x.lib\"\n"), (Files{"x.lib", "x.lib"}));
}

TEST_F(IncludeList, TakesEachPieceOfALongLineForALine) {
  const std::string padding = "*" + std::string(1022, 'x');
  EXPECT_EQ(libraries(padding + ".lib \"x.lib\"\n"), Files{"x.lib"});
  EXPECT_EQ(libraries(".lib \"" + std::string(5000, 'y') + ".lib\"\n.lib \"z.lib\"\n"),
            Files{"z.lib"});
}

TEST_F(IncludeList, MayHoldBinaryJunk) {
  std::string junk(100000, '\0');
  for (std::size_t i = 0; i < junk.size(); ++i)
    junk[i] = static_cast<char>((i * 7919) >> 3);
  EXPECT_EQ(libraries(junk + "\n.lib \"x.lib\"\n" + junk), Files{"x.lib"});
}

TEST_F(IncludeList, WithWindowsLineEndsReadsTheSame) {
  EXPECT_EQ(libraries(".LIB\t\"x.lib\" \r\n.LIB\t\"y.lib\" \r\n"), (Files{"x.lib", "y.lib"}));
}

TEST_F(IncludeList, ReadAgainReplacesTheLists) {
  CTervixProfile& profile = opened(".lib \"old.lib\"\n");
  add(profile, "added.lib", VARIANTFILE_TYPE_LIBRARY, false);
  writeList(".lib \"new.lib\"\n");
  EXPECT_EQ(profile.readVariants(), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{"new.lib"});
  EXPECT_TRUE(isUpdated(profile));
}

TEST_F(IncludeList, ThatIsMissingEmptiesTheLists) {
  CTervixProfile& profile = opened(".lib \"old.lib\"\n");
  std::filesystem::remove(listPath());
  profile.setVariantsUpdated(false);
  EXPECT_EQ(profile.readProfileLevelVariants(), 10104U);
  expectLastError(10104, missing());
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{});
  EXPECT_TRUE(isUpdated(profile));
}

TEST_F(IncludeList, ThatIsAFolderIsNoFileAndStays) {
  writeFile(listPath() + "/inside", "kept");
  CTervixProfile& profile = open();
  EXPECT_EQ(profile.readProfileLevelVariants(), 10104U);
  expectLastError(10104, missing());
  EXPECT_NE(profile.writeProfileLevelVariants(), 0U);
  profile_.reset();
  EXPECT_EQ(contentOf(listPath() + "/inside"), "kept");
}

TEST_F(IncludeList, WithoutAPathIsNeitherReadNorWritten) {
  CTervixProfile profile;
  profile.setProjectType(PROJECT_TYPE_SIMULATION);
  EXPECT_EQ(profile.readProfileLevelVariants(), 1U);
  EXPECT_TRUE(isUpdated(profile));
  EXPECT_EQ(profile.writeProfileLevelVariants(), 1U);
  EXPECT_TRUE(isUpdated(profile));
  expectNoLastError();
}

TEST_F(IncludeList, IsSavedByKindWithBackslashes) {
  CTervixProfile& profile = open();
  add(profile, "C:/s/1.stl", VARIANTFILE_TYPE_STIMULUS);
  add(profile, "C:/l/1.lib", VARIANTFILE_TYPE_LIBRARY);
  add(profile, "C:/l\\2.lib", VARIANTFILE_TYPE_LIBRARY);
  add(profile, "./i/1.inc", VARIANTFILE_TYPE_INCLUDE);
  EXPECT_EQ(profile.writeVariants(), 0U);
  EXPECT_FALSE(isUpdated(profile));
  EXPECT_EQ(contentOf(listPath()), inTextMode(".INC\t\".\\i\\1.inc\" \n"
                                              ".LIB\t\"C:\\l\\1.lib\" \n"
                                              ".LIB\t\"C:\\l\\2.lib\" \n"
                                              ".STMLIB\t\"C:\\s\\1.stl\" \n"));
}

TEST_F(IncludeList, IsReadBackAsItWasSaved) {
  CTervixProfile& profile = open();
  add(profile, "C:/50%s%n \xC3\xA4.lib", VARIANTFILE_TYPE_LIBRARY);
  ASSERT_EQ(profile.writeVariants(), 0U);
  EXPECT_EQ(profile.readVariants(), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{"C:\\50%s%n \xC3\xA4.lib"});
}

TEST_F(IncludeList, IsNotTouchedUnlessTheListsAreUpdated) {
  const std::string content = "* by hand\n.lib \"x.lib\"\n";
  CTervixProfile& profile = opened(content);
  profile.setVariantsUpdated(false);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_EQ(contentOf(listPath()), content);
}

TEST_F(IncludeList, IsRemovedWithItsLastEntry) {
  CTervixProfile& profile = opened(".lib \"x.lib\"\n.inc \"y.inc\"\n");
  profile.deleteProfileLevelFile(text("x.lib"), VARIANTFILE_TYPE_LIBRARY, true);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_TRUE(isFile(listPath()));
  profile.deleteProfileLevelFile(text("y.inc"), VARIANTFILE_TYPE_INCLUDE, true);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_FALSE(isFile(listPath()));
  EXPECT_FALSE(isUpdated(profile));
}

TEST_F(IncludeList, WithoutEntriesIsNotMade) {
  CTervixProfile& profile = open();
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_TRUE(snapshotOf(topFolder() + "/tran").empty());
}

TEST_F(IncludeList, ThatCannotBeWrittenIsNamed) {
  CTervixProfile& profile = open();
  const std::string path = topFolder() + "/missing/list.inc";
  profile.setVariantFilePath(text(std::string(path)));
  add(profile, "x.lib", VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 10106U);
  expectLastError(10106, "Failed to open file \"" + path +
                             "\" for writing. Check disk space and write permissions on the "
                             "parent directory.");
  EXPECT_TRUE(isUpdated(profile));
  profile.setVariantFilePath(text(listPath()));
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
}

TEST_F(IncludeList, IsRewrittenInNormalFormWhenTheProfileIsDestroyed) {
  opened("* by hand\n.lib   \"x.lib\" trailing\n.INC \"y.inc\"\n");
  profile_.reset();
  EXPECT_EQ(contentOf(listPath()), inTextMode(".INC\t\"y.inc\" \n.LIB\t\"x.lib\" \n"));
}

TEST_F(IncludeList, IsRewrittenOnDestructionEvenWhenNothingChanged) {
  opened(".lib \"x.lib\"\n").setVariantsUpdated(false);
  profile_.reset();
  EXPECT_EQ(contentOf(listPath()), inTextMode(".LIB\t\"x.lib\" \n"));
}

TEST_F(IncludeList, ThatIsGoneIsWrittenAnewOnDestruction) {
  opened(".LIB\t\"x.lib\" \n").setVariantsUpdated(false);
  std::filesystem::remove(listPath());
  profile_.reset();
  EXPECT_EQ(contentOf(listPath()), inTextMode(".LIB\t\"x.lib\" \n"));
}

TEST_F(IncludeList, LoadedForAnyOtherProjectLeavesTheListsInPlace) {
  CTervixProfile& profile = opened(".lib \"x.lib\"\n");
  profile.setVariantsUpdated(false);
  profile.setProjectType(PROJECT_TYPE_OTHER);
  EXPECT_EQ(profile.readProfileLevelVariants(), 0U);
  int count = 0;
  EXPECT_EQ(profile.numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_EQ(count, 1);
  EXPECT_FALSE(isUpdated(profile));
}

TEST_F(IncludeList, WithoutEntriesIsRemovedWhenTheProfileIsDestroyed) {
  opened("* nothing\n");
  profile_.reset();
  EXPECT_FALSE(isFile(listPath()));
}

TEST_F(IncludeList, OfAnyOtherProjectIsNotTouched) {
  CTervixProfile profile(place("a.sim").c_str(), "a", nullptr, FRONTEND_ID_DESIGN_FILE,
                         PROJECT_TYPE_OTHER, nullptr);
  const std::string path = file("a_profile.inc", "kept");
  profile.setVariantFilePath(text(std::string(path)));
  profile.setVariantsUpdated(true);
  EXPECT_EQ(profile.readProfileLevelVariants(), 0U);
  EXPECT_TRUE(isUpdated(profile));
  EXPECT_EQ(profile.writeProfileLevelVariants(), 0U);
  EXPECT_FALSE(isUpdated(profile));
  EXPECT_EQ(contentOf(path), "kept");
  expectNoLastError();
}

TEST_F(IncludeList, WithoutAProjectTypeIsNeitherReadNorWritten) {
  CTervixProfile profile;
  profile.setVariantsUpdated(true);
  EXPECT_EQ(profile.readProfileLevelVariants(), 1U);
  EXPECT_EQ(profile.writeProfileLevelVariants(), 1U);
  EXPECT_TRUE(isUpdated(profile));
}

} // namespace
} // namespace tervix::testing
