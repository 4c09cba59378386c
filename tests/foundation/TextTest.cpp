#include "foundation/Text.h"

#include <clocale>
#include <string>

#include <gtest/gtest.h>

namespace tervix {
namespace {

TEST(Text, LowerCaseIsThatOfAsciiLettersOnly) {
  EXPECT_EQ(toLowerCase("Amp-TOP@[`{.SIM"), "amp-top@[`{.sim");
  EXPECT_EQ(toLowerCase("\xC4\xD6\xC3\x84"), "\xC4\xD6\xC3\x84");
  EXPECT_EQ(toLowerCase(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(Text, CaseDoesNotDependOnTheLocale) {
  const std::string former = std::setlocale(LC_ALL, nullptr);
  for (const char* locale : {"tr_TR.UTF-8", "de_DE.ISO-8859-1", "C.UTF-8"}) {
    std::setlocale(LC_ALL, locale); // where it is not installed, the former one stays
    EXPECT_EQ(toLowerCase("TITLE"), "title");
    EXPECT_FALSE(equalsIgnoringCase("\xC4", "\xE4"));
  }
  std::setlocale(LC_ALL, former.c_str());
}

TEST(Text, SlashesAreTurnedBothWays) {
  EXPECT_EQ(toForwardSlashes("C:\\a/b\\c"), "C:/a/b/c");
  EXPECT_EQ(toBackslashes("C:\\a/b\\c"), "C:\\a\\b\\c");
  EXPECT_EQ(toForwardSlashes(""), "");
}

TEST(Text, EqualityIgnoresCaseButNotLength) {
  EXPECT_TRUE(equalsIgnoringCase("MixedCase", "mIXEDcASE"));
  EXPECT_TRUE(equalsIgnoringCase("", ""));
  EXPECT_FALSE(equalsIgnoringCase("abc", "abcd"));
  EXPECT_FALSE(equalsIgnoringCase("abcd", "abc"));
  EXPECT_FALSE(equalsIgnoringCase("[", "{"));
}

TEST(Text, PathsAreEqualWhateverCaseAndSeparator) {
  EXPECT_TRUE(equalsAsPath("C:\\Lib/x.LIB", "c:/lib\\X.lib"));
  EXPECT_FALSE(equalsAsPath("a/b", "a//b"));
  EXPECT_FALSE(equalsAsPath("a/b", "a/b/"));
}

TEST(Text, StartAndEndAreComparedWithoutCase) {
  EXPECT_TRUE(startsWithIgnoringCase("NetlistFile= x", "netlistFILE"));
  EXPECT_FALSE(startsWithIgnoringCase("Net", "NetlistFile"));
  EXPECT_TRUE(endsWithIgnoringCase("a.SIM", ".sim"));
  EXPECT_FALSE(endsWithIgnoringCase("sim", ".sim"));
}

TEST(Text, StripPrefixGivesTheRest) {
  EXPECT_EQ(stripPrefix("TOP-tran", "top-"), "tran");
  EXPECT_EQ(stripPrefix("top", "TOP"), "");
  EXPECT_EQ(stripPrefix("top", ""), "top");
  EXPECT_EQ(stripPrefix("top", "tops"), std::nullopt);
  EXPECT_EQ(stripPrefix("top", "x"), std::nullopt);
}

TEST(Text, StripSuffixGivesWhatStandsBefore) {
  EXPECT_EQ(stripSuffix("amp-TervixFiles", "-tervixfiles"), "amp");
  EXPECT_EQ(stripSuffix("top", "TOP"), "");
  EXPECT_EQ(stripSuffix("top", "x"), std::nullopt);
}

TEST(Text, ASuffixLongerThanTheTextDoesNotMatch) {
  EXPECT_EQ(stripSuffix("sim", "a.sim"), std::nullopt);
  EXPECT_EQ(stripSuffix("", ".sim"), std::nullopt);
}

TEST(Text, SplitDropsTheDelimiterItself) {
  const auto parts = splitAtFirstOf("a/b\\c", "\\/");
  ASSERT_TRUE(parts);
  EXPECT_EQ(parts->first, "a");
  EXPECT_EQ(parts->second, "b\\c");
}

TEST(Text, SplitAtTheVeryStartOrEndGivesAnEmptyPart) {
  EXPECT_EQ(splitAtFirstOf("/a", "/")->first, "");
  EXPECT_EQ(splitAtFirstOf("a/", "/")->second, "");
}

TEST(Text, SplitFindsNothingWithoutADelimiter) {
  EXPECT_FALSE(splitAtFirstOf("abc", "/"));
  EXPECT_FALSE(splitAtFirstOf("abc", ""));
  EXPECT_FALSE(splitAtFirstOf("", "/"));
}

TEST(Text, WithoutLastNeverCutsMoreThanThereIs) {
  EXPECT_EQ(withoutLast("tran.sim", 4), "tran");
  EXPECT_EQ(withoutLast("sim", 4), "");
  EXPECT_EQ(withoutLast("", 4), "");
}

TEST(Text, ReplaceFirstReplacesOnePlace) {
  std::string name = "TOP-TOP";
  EXPECT_TRUE(replaceFirst(name, "TOP", "MAIN"));
  EXPECT_EQ(name, "MAIN-TOP");
  EXPECT_FALSE(replaceFirst(name, "top", "x"));
  EXPECT_EQ(name, "MAIN-TOP");
}

} // namespace
} // namespace tervix
