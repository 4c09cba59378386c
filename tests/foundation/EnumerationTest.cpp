#include <set>
#include <string>

#include <gtest/gtest.h>

#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

using Names = std::multiset<std::string>;

class Enumeration : public ::testing::Test {
protected:
  Enumeration() { forgetLastError(); }
  ~Enumeration() override { expectNoLastError(); }

  static Names rest(_dirdesc* handle) {
    Names names;
    for (std::string name; readDir(handle, name) == 0;)
      names.insert(name);
    return names;
  }

  static Names namesIn(std::string path) {
    _dirdesc* handle = nullptr;
    EXPECT_EQ(openDir(path, handle), 0U) << path;
    Names names = rest(handle);
    EXPECT_EQ(closeDir(handle), 0U);
    return names;
  }

  const TemporaryFolder folder_;
};

TEST_F(Enumeration, OfAnEmptyFolderGivesTheTwoDotsAndThenOne) {
  std::string path = folder_.path();
  _dirdesc* handle = nullptr;
  ASSERT_EQ(openDir(path, handle), 0U);
  std::string name;
  Names names;
  EXPECT_EQ(readDir(handle, name), 0U);
  names.insert(name);
  EXPECT_EQ(readDir(handle, name), 0U);
  names.insert(name);
  EXPECT_EQ(names, (Names{".", ".."}));
  EXPECT_EQ(readDir(handle, name), 1U);
  EXPECT_EQ(name, "");
  EXPECT_EQ(readDir(handle, name), 1U);
  EXPECT_EQ(closeDir(handle), 0U);
}

TEST_F(Enumeration, GivesEveryEntryOnceWhateverItsKindAndName) {
  folder_.file("x.sim");
  folder_.folder("sub");
  Names expected = {".", "..", "x.sim", "sub"};
  for (const char* name : {"two\nlines %s \"\xC3\xA4\xFF", "50%s \xC3\xA4"})
    if (canBeAFileName(name)) {
      folder_.file(name);
      expected.insert(name);
    }
  EXPECT_EQ(namesIn(folder_.path()), expected);
}

TEST_F(Enumeration, IsTakenWhenTheFolderIsOpened) {
  std::string early = folder_.file("early");
  std::string path = folder_.path();
  _dirdesc* handle = nullptr;
  ASSERT_EQ(openDir(path, handle), 0U);
  folder_.file("late");
  rmFile(early);
  EXPECT_EQ(rest(handle), (Names{".", "..", "early"}));
  closeDir(handle);
}

TEST_F(Enumeration, TakesBackslashesAndATrailingSeparator) {
  folder_.file("sub/x");
  const Names expected = {".", "..", "x"};
  EXPECT_EQ(namesIn(folder_.path("sub/")), expected);
  EXPECT_EQ(namesIn(folder_.path() + "\\sub"), expected);
  EXPECT_EQ(namesIn(folder_.path() + "\\sub\\"), expected);
}

TEST_F(Enumeration, OfTwoFoldersAtOnceDoesNotMixThem) {
  folder_.file("a/one");
  folder_.file("b/two");
  std::string a = folder_.path("a");
  std::string b = folder_.path("b");
  _dirdesc* first = nullptr;
  _dirdesc* second = nullptr;
  ASSERT_EQ(openDir(a, first), 0U);
  ASSERT_EQ(openDir(b, second), 0U);
  EXPECT_EQ(rest(first), (Names{".", "..", "one"}));
  EXPECT_EQ(rest(second), (Names{".", "..", "two"}));
  closeDir(first);
  closeDir(second);
}

TEST_F(Enumeration, OfManyEntriesIsComplete) {
  for (int i = 0; i < 3000; ++i)
    folder_.file("many/" + std::to_string(i));
  EXPECT_EQ(namesIn(folder_.path("many")).size(), 3002U);
}

TEST_F(Enumeration, OfNoFolderFailsWithANullHandle) {
  for (const std::string& path : {folder_.file("file"), folder_.path("missing"), std::string(),
                                  folder_.path() + std::string("\0", 1)}) {
    int unrelated = 0;
    auto* handle = reinterpret_cast<_dirdesc*>(&unrelated);
    EXPECT_EQ(openDir(text(std::string(path)), handle), 1U) << path;
    EXPECT_EQ(handle, nullptr) << path;
  }
}

TEST_F(Enumeration, ANullHandleHasNoEntries) {
  std::string name = "before";
  EXPECT_EQ(readDir(nullptr, name), 1U);
  EXPECT_EQ(name, "");
  EXPECT_EQ(closeDir(nullptr), 0U);
}

} // namespace
} // namespace tervix::testing
