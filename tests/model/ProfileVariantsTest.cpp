#include "tests/model/VariantTree.h"

// The three lists of variant files as they are kept in memory.

namespace tervix::testing {
namespace {

class ProfileVariants : public VariantTree {
protected:
  CTervixProfile& three(VARIANTFILE_TYPE type) {
    CTervixProfile& profile = open();
    for (const char* name : {"a", "b", "c"})
      EXPECT_EQ(add(profile, name, type), 0U);
    return profile;
  }
};

TEST_F(ProfileVariants, AreKeptInTheOrderInWhichTheyWereAdded) {
  for (const VARIANTFILE_TYPE type : kEveryKind)
    EXPECT_EQ(filesOf(three(type), type), (Files{"a", "b", "c"}));
}

TEST_F(ProfileVariants, CanBeAddedAtTheFront) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(add(profile, "front", VARIANTFILE_TYPE_LIBRARY, true, true), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), (Files{"front", "a", "b", "c"}));
}

TEST_F(ProfileVariants, OfOneKindDoNotMixWithAnother) {
  CTervixProfile& profile = open();
  add(profile, "x", VARIANTFILE_TYPE_LIBRARY);
  add(profile, "x", VARIANTFILE_TYPE_INCLUDE);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{"x"});
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_INCLUDE), Files{"x"});
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_STIMULUS), Files{});
}

TEST_F(ProfileVariants, ThatDifferInCaseAndSeparatorsAreOne) {
  CTervixProfile& profile = open();
  add(profile, "C:/lib/X.lib", VARIANTFILE_TYPE_LIBRARY, true);
  EXPECT_EQ(add(profile, "c:\\LIB\\x.LIB", VARIANTFILE_TYPE_LIBRARY, false), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{"C:/lib/X.lib"});
  EXPECT_FALSE(isUpdated(profile));
  EXPECT_EQ(add(profile, "C:/lib/x.lib", VARIANTFILE_TYPE_LIBRARY, true), 0U);
  EXPECT_TRUE(isUpdated(profile));
}

TEST_F(ProfileVariants, CountAsUpdatedAsTheCallerSays) {
  CTervixProfile& profile = open();
  add(profile, "a", VARIANTFILE_TYPE_LIBRARY, false);
  EXPECT_FALSE(isUpdated(profile));
  add(profile, "b", VARIANTFILE_TYPE_LIBRARY, true);
  EXPECT_TRUE(isUpdated(profile));
}

TEST_F(ProfileVariants, AreDeletedWhateverCaseAndSeparators) {
  CTervixProfile& profile = open();
  for (const char* name : {"a", "lib/B", "c"})
    add(profile, name, VARIANTFILE_TYPE_STIMULUS);
  EXPECT_EQ(profile.deleteProfileLevelFile(text("LIB\\b"), VARIANTFILE_TYPE_STIMULUS, false), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_STIMULUS), (Files{"a", "c"}));
  EXPECT_FALSE(isUpdated(profile));
}

TEST_F(ProfileVariants, ThatAreNotListedAreDeletedWithSuccess) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  profile.setVariantsUpdated(false);
  EXPECT_EQ(profile.deleteProfileLevelFile(text("other"), VARIANTFILE_TYPE_LIBRARY, true), 0U);
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY).size(), 3U);
  EXPECT_TRUE(isUpdated(profile));
}

TEST_F(ProfileVariants, CanBeDeletedByOneKindOrAll) {
  CTervixProfile& profile = open();
  for (const VARIANTFILE_TYPE type : kEveryKind)
    add(profile, "x", type);
  EXPECT_EQ(profile.deleteAllProfileLevelFiles(VARIANTFILE_TYPE_STIMULUS, false), 0U);
  EXPECT_FALSE(isUpdated(profile));
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_STIMULUS), Files{});
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{"x"});
  EXPECT_EQ(profile.deleteAllProfileLevelFiles(true), 0U);
  EXPECT_TRUE(isUpdated(profile));
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_LIBRARY), Files{});
  EXPECT_EQ(filesOf(profile, VARIANTFILE_TYPE_INCLUDE), Files{});
}

TEST_F(ProfileVariants, AreCounted) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_INCLUDE);
  int count = -1;
  EXPECT_EQ(profile.numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_INCLUDE), 0U);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(profile.numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_EQ(count, 0);
}

TEST_F(ProfileVariants, EndWithAnEmptyNameAgainAndAgain) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  filesOf(profile, VARIANTFILE_TYPE_LIBRARY);
  for (int i = 0; i < 5; ++i) {
    std::string file = "before";
    EXPECT_EQ(profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY), 0U);
    EXPECT_EQ(file, "");
  }
}

TEST_F(ProfileVariants, AddedAtTheEndAreReachedHoweverOftenTheEndWasAskedFor) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  filesOf(profile, VARIANTFILE_TYPE_LIBRARY);
  std::string file;
  for (int i = 0; i < 5; ++i)
    profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  // The cursor waits behind the third file, where the first new one comes to stand.
  for (const char* name : {"d", "e"})
    add(profile, name, VARIANTFILE_TYPE_LIBRARY);
  profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(file, "e");
}

TEST_F(ProfileVariants, AnEmptyListHasAnEmptyTopAndKeepsItsCursor) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  std::string file;
  profile.getTopProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  ASSERT_EQ(file, "b");
  profile.deleteAllProfileLevelFiles(true);
  file = "before";
  EXPECT_EQ(profile.getTopProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_EQ(file, "");
  // Still at the second place: the next file is the third.
  for (const char* name : {"d", "e", "f"})
    add(profile, name, VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_EQ(file, "f");
}

TEST_F(ProfileVariants, EachListHasACursorOfItsOwn) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  for (const char* name : {"x", "y"})
    add(profile, name, VARIANTFILE_TYPE_INCLUDE);
  std::string file;
  profile.getTopProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  profile.getTopProfileLevelFile(file, VARIANTFILE_TYPE_INCLUDE);
  profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(file, "c");
  profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_INCLUDE);
  EXPECT_EQ(file, "y");
}

TEST_F(ProfileVariants, CursorIsNotMovedByADeletion) {
  CTervixProfile& profile = three(VARIANTFILE_TYPE_LIBRARY);
  std::string file;
  profile.getTopProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  profile.deleteProfileLevelFile(text("a"), VARIANTFILE_TYPE_LIBRARY, true);
  profile.getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY);
  EXPECT_EQ(file, "c");
}

TEST_F(ProfileVariants, OfNoKindAreRefused) {
  CTervixProfile& profile = open();
  const std::string message = "Invalid profile level variant type.";
  for (const int value : {-1, 3, 1000}) {
    const auto kind = static_cast<VARIANTFILE_TYPE>(value);
    std::string file = "before";
    int count = 7;
    forgetLastError();
    EXPECT_EQ(profile.getTopProfileLevelFile(file, kind), 10112U);
    EXPECT_EQ(file, "");
    expectLastError(10112, message);
    EXPECT_EQ(profile.getNextProfileLevelFile(file, kind), 10112U);
    EXPECT_EQ(add(profile, "x", kind), 10112U);
    EXPECT_EQ(profile.deleteProfileLevelFile(file, kind, true), 10112U);
    EXPECT_EQ(profile.deleteAllProfileLevelFiles(kind, true), 10112U);
    EXPECT_EQ(profile.numberOfProfileLevelFiles(count, kind), 10112U);
    expectLastError(10112, message);
  }
}

TEST_F(ProfileVariants, OfNoKindLeaveTheUpdatedFlag) {
  CTervixProfile& profile = open();
  profile.setVariantsUpdated(false);
  add(profile, "x", kNoKind, true);
  profile.deleteAllProfileLevelFiles(kNoKind, true);
  EXPECT_FALSE(isUpdated(profile));
}

class VariantsOutsideSimulation : public ModelTree,
                                  public ::testing::WithParamInterface<PROJECT_TYPE> {};

TEST_P(VariantsOutsideSimulation, DoNotExist) {
  makeTop(FRONTEND_ID_DESIGN_FILE, GetParam());
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  std::string file = "before";
  EXPECT_EQ(profile->getTopProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY), 1U);
  EXPECT_EQ(file, "");
  file = "before";
  EXPECT_EQ(profile->getNextProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY), 1U);
  EXPECT_EQ(file, "");
  EXPECT_EQ(profile->addProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY, true, false), 1U);
  EXPECT_EQ(profile->deleteProfileLevelFile(file, VARIANTFILE_TYPE_LIBRARY, true), 1U);
  bool updated = true;
  profile->areVariantsUpdated(updated);
  EXPECT_FALSE(updated);
  // The project type is looked at before the kind.
  EXPECT_EQ(profile->getTopProfileLevelFile(file, static_cast<VARIANTFILE_TYPE>(9)), 1U);
  expectNoLastError();
}

TEST_P(VariantsOutsideSimulation, CanBeCountedAndDeletedAllTheSame) {
  makeTop(FRONTEND_ID_DESIGN_FILE, GetParam());
  const auto profile = makeProfile(place("amp-TOP-tran.sim"));
  int count = 7;
  EXPECT_EQ(profile->numberOfProfileLevelFiles(count, VARIANTFILE_TYPE_LIBRARY), 0U);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(profile->deleteAllProfileLevelFiles(VARIANTFILE_TYPE_LIBRARY, true), 0U);
  EXPECT_EQ(profile->deleteAllProfileLevelFiles(true), 0U);
  bool updated = false;
  profile->areVariantsUpdated(updated);
  EXPECT_TRUE(updated);
}

INSTANTIATE_TEST_SUITE_P(ProfileVariants, VariantsOutsideSimulation,
                         ::testing::Values(PROJECT_TYPE_OTHER, PROJECT_TYPE_UNSET));

} // namespace
} // namespace tervix::testing
