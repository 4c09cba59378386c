#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "foundation/PathNames.h"
#include "tests/support/LastErrorCheck.h"

namespace tervix::testing {
namespace {

struct RelativeCase {
  const char* path;
  bool isRelative;
  const char* pathAfterwards;
};

class IsRelativePathName : public ::testing::TestWithParam<RelativeCase> {};

TEST_P(IsRelativePathName, TellsAndRewrites) {
  std::string path = GetParam().path;
  bool isRelative = !GetParam().isRelative;
  EXPECT_EQ(isRelativePathName(path, isRelative), 0U);
  EXPECT_EQ(isRelative, GetParam().isRelative);
  EXPECT_EQ(path, GetParam().pathAfterwards);
}

INSTANTIATE_TEST_SUITE_P(
    RelativePath, IsRelativePathName,
    ::testing::Values(RelativeCase{"sub\\file.sim", true, "./sub/file.sim"},
                      RelativeCase{"file.sim", true, "./file.sim"},
                      RelativeCase{"C:\\x", false, "C:\\x"}, RelativeCase{"C:x", false, "C:x"},
                      RelativeCase{"\\\\server\\share", false, "\\\\server\\share"},
                      RelativeCase{"//server/share", false, "//server/share"},
                      RelativeCase{"../x", true, "../x"}, RelativeCase{"..\\x", true, "..\\x"},
                      RelativeCase{"./x", true, "./x"}, RelativeCase{".\\x", true, ".\\x"}));

// The places that are looked at are fixed, whatever stands there.
INSTANTIATE_TEST_SUITE_P(FixedPositions, IsRelativePathName,
                         ::testing::Values(RelativeCase{"ab/c", false, "ab/c"},
                                           RelativeCase{"ab\\c", false, "ab\\c"},
                                           RelativeCase{"/tmp/x", true, ".//tmp/x"},
                                           RelativeCase{"/a/b", false, "/a/b"},
                                           RelativeCase{"abc/d", true, "./abc/d"}));

INSTANTIATE_TEST_SUITE_P(
    ShorterThanThePositions, IsRelativePathName,
    ::testing::Values(RelativeCase{"", true, "./"}, RelativeCase{"a", true, "./a"},
                      RelativeCase{"ab", true, "./ab"}, RelativeCase{"/", true, ".//"},
                      RelativeCase{"C:", false, "C:"}, RelativeCase{"//", false, "//"},
                      RelativeCase{"ab/", false, "ab/"}, RelativeCase{"..", true, "./.."}));

struct Resolution {
  const char* path;
  const char* base;
  unsigned long status;
  const char* result;
};

class GetAbsolutePathName : public ::testing::TestWithParam<Resolution> {};

TEST_P(GetAbsolutePathName, ResolvesAgainstTheFolder) {
  std::string relative = GetParam().path;
  std::string base = GetParam().base;
  std::string absolute = "before";
  EXPECT_EQ(getAbsolutePathName(relative, base, absolute), GetParam().status);
  EXPECT_EQ(absolute, GetParam().result);
  EXPECT_EQ(relative, GetParam().path);
  EXPECT_EQ(base, GetParam().base);
}

INSTANTIATE_TEST_SUITE_P(RelativePath, GetAbsolutePathName,
                         ::testing::Values(Resolution{"../x.lib", "C:/a/b", 0, "C:/a/x.lib"},
                                           Resolution{"../x.lib", "C:/a/b/", 0, "C:/a/x.lib"},
                                           Resolution{"..\\x.lib", "C:\\a\\b", 0, "C:/a/x.lib"},
                                           Resolution{"./x", "C:/a", 0, "C:/a/x"},
                                           Resolution{"./x", "C:/a/", 0, "C:/a/x"},
                                           Resolution{"sub\\x", "C:\\a", 0, "C:/a/sub/x"},
                                           Resolution{"C:/x", "C:/a", 1, ""},
                                           Resolution{"//s/x", "C:/a", 1, ""},
                                           Resolution{"../../x", "C:/a/b", 0, "C:/a/../x"}));

INSTANTIATE_TEST_SUITE_P(
    BaseWithoutAFolder, GetAbsolutePathName,
    ::testing::Values(Resolution{"./x", "C:", 1, ""}, Resolution{"x", "", 1, ""},
                      Resolution{"../x", "C:", 1, ""}, Resolution{"../x", "a/", 1, ""},
                      Resolution{"../x", "", 1, ""}, Resolution{"../x", "/a", 0, "/x"},
                      Resolution{"../x", "/", 1, ""}, Resolution{"", "C:/a", 0, "C:/a/"}));

TEST(GetAbsolutePathNameInPlace, TheResultMayReplaceTheInputOrTheBase) {
  std::string path = "x.lib";
  std::string base = "C:/a";
  EXPECT_EQ(getAbsolutePathName(path, base, path), 0U);
  EXPECT_EQ(path, "C:/a/x.lib");
  path = "../y.lib";
  EXPECT_EQ(getAbsolutePathName(path, base, base), 0U);
  EXPECT_EQ(base, "C:/y.lib");
}

class GetRelativePathName : public ::testing::TestWithParam<Resolution> {};

TEST_P(GetRelativePathName, GivesThePathAsSeenFromTheFolder) {
  std::string path = GetParam().path;
  std::string base = GetParam().base;
  std::string relative = "before";
  EXPECT_EQ(getRelativePathName(path, base, relative), GetParam().status);
  EXPECT_EQ(relative, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    RelativePath, GetRelativePathName,
    ::testing::Values(Resolution{"C:/a/b/c.sim", "C:/a", 0, "./b/c.sim"},
                      Resolution{"C:\\a\\b\\c.sim", "C:\\a", 0, "./b/c.sim"},
                      Resolution{"C:/a/b/c.sim", "D:/z", 1, ""},
                      Resolution{"C:/a/b", "c:/a", 1, ""}, Resolution{"C:/a", "C:/a/b", 1, ""},
                      Resolution{"C:/a", "C:/a", 0, "./"}, Resolution{"C:/a/", "C:/a", 0, "./"},
                      Resolution{"abc", "", 0, "./bc"}, Resolution{"", "", 0, "./"}));

TEST(GetRelativePathNameInPlace, TheResultMayReplaceTheInput) {
  std::string path = "C:/a/b";
  std::string base = "C:/a";
  EXPECT_EQ(getRelativePathName(path, base, path), 0U);
  EXPECT_EQ(path, "./b");
}

TEST(ResolvedAgainst, TakesAPathOfTheSystemAsItStands) {
  EXPECT_EQ(resolvedAgainst("/p", "/data/x.dat"), "/data/x.dat");
  EXPECT_EQ(resolvedAgainst("/p", "\\data\\x.dat"), "/data/x.dat");
  EXPECT_EQ(resolvedAgainst("/p", "C:\\x.dat"), "C:/x.dat");
}

TEST(ResolvedAgainst, MakesARelativePathAbsolute) {
  EXPECT_EQ(resolvedAgainst("/p", "run\\x.dat"), "/p/run/x.dat");
  EXPECT_EQ(resolvedAgainst("/p/q", "../x.dat"), "/p/x.dat");
  EXPECT_EQ(resolvedAgainst("", "x.dat"), std::nullopt);
}

TEST(RelativePaths, RecordNoError) {
  forgetLastError();
  std::string result;
  EXPECT_EQ(getAbsolutePathName(text("C:/x"), text("C:/a"), result), 1U);
  EXPECT_EQ(getRelativePathName(text("C:/x"), text("D:/a"), result), 1U);
  expectNoLastError();
}

} // namespace
} // namespace tervix::testing
