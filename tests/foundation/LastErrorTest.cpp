#include "foundation/LastError.h"

#include <string>

#include <gtest/gtest.h>

#include "CTervixProject.h"
#include "TervixFiles.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

// Seen before any test can record an error.
const unsigned long codeAtLoad = lastErrorCode();
const std::string textAtLoad = lastErrorText();

class LastError : public ::testing::Test {
protected:
  LastError() { forgetLastError(); }
};

TEST_F(LastError, IsZeroAndEmptyWhenTheLibraryIsLoaded) {
  EXPECT_EQ(codeAtLoad, 0U);
  EXPECT_EQ(textAtLoad, "");
}

TEST_F(LastError, IsReadThroughAnyProjectEvenOneThatOpenedNothing) {
  raiseError(kInvalidSimFile, "a.sim");
  CTervixProject none(nullptr, FRONTEND_ID_UNSET, false, nullptr);
  CTervixProject empty;
  for (CTervixProject* project : {&none, &empty}) {
    unsigned long code = 0;
    std::string message = "before";
    EXPECT_EQ(project->getLastErrorCode(code), 0U);
    EXPECT_EQ(project->getLastErrorString(message), 0U);
    EXPECT_EQ(code, 10121U);
    EXPECT_EQ(message, "Invalid simulation profile \"a.sim\".");
  }
}

TEST_F(LastError, StaysAfterALaterSuccess) {
  const TemporaryFolder folder;
  std::string blocked = folder.file("file") + "/below";
  ASSERT_EQ(createPath(blocked), 10102U);
  ASSERT_EQ(createPath(text(folder.path("fine"))), 0U);
  EXPECT_EQ(lastErrorCode(), 10102U);
}

TEST_F(LastError, IsOverwrittenByTheNextFailureWhole) {
  raiseError(kFileDoesNotExist, "first");
  raiseError(kNodeNotInitialized);
  expectLastError(10111, "Node not initialized properly.");
}

TEST_F(LastError, IsReturnedAsTheStatusOfTheFailure) {
  EXPECT_EQ(raiseError(kNodeNotInitialized), 10111U);
  EXPECT_EQ(raiseError(kCannotDeleteFile, "x"), 10107U);
  EXPECT_EQ(raiseError(kCannotCopyFile, "x", "y"), 10108U);
}

TEST_F(LastError, OfACopyNamesTheSourceThenTheTarget) {
  raiseError(kCannotCopyFile, "from.net", "to.net");
  expectLastError(10108, "Failed to copy file \"from.net\" to file \"to.net\". Check disk space "
                         "and access permissions.");
}

TEST_F(LastError, KeepsTheQuotesAroundAnEmptyName) {
  raiseError(kFileDoesNotExist, "");
  expectLastError(10104, "File \"\" does not exist.");
}

TEST_F(LastError, TakesNamesAsTheyAre) {
  raiseError(kFileDoesNotExist, "50%s %n \"quoted\"\nline \xC3\xA4");
  expectLastError(10104, "File \"50%s %n \"quoted\"\nline \xC3\xA4\" does not exist.");
  raiseError(kCannotCopyFile, "%s", "b");
  expectLastError(10108, "Failed to copy file \"%s\" to file \"b\". Check disk space and access "
                         "permissions.");
}

TEST_F(LastError, LeavesAPlaceWithoutANameAsItStands) {
  raiseError(kFileDoesNotExist);
  expectLastError(10104, "File \"%s\" does not exist.");
}

TEST_F(LastError, IgnoresNamesForWhichThereIsNoPlace) {
  raiseError(kNodeNotInitialized, "name");
  expectLastError(10111, "Node not initialized properly.");
}

TEST_F(LastError, IsCutAtTheLongestMessage) {
  raiseError(kFileDoesNotExist, std::string(5000, 'a'));
  EXPECT_EQ(lastErrorText(), "File \"" + std::string(1017, 'a'));
  const std::string fitting(1023 - std::string("File \"\" does not exist.").size(), 'b');
  raiseError(kFileDoesNotExist, fitting);
  EXPECT_EQ(lastErrorText(), "File \"" + fitting + "\" does not exist.");
}

TEST_F(LastError, IsPutBackAfterAnAttemptWhoseFailureIsNoNews) {
  raiseError(kFileDoesNotExist, "kept");
  {
    const LastErrorKept kept;
    raiseError(kInvalidSimFile, "no news");
    EXPECT_EQ(lastErrorCode(), 10121U);
  }
  expectLastError(10104, "File \"kept\" does not exist.");
}

TEST_F(LastError, TextCanBeSetEmpty) {
  setLastErrorString("something");
  EXPECT_EQ(setLastErrorString(""), 0U);
  EXPECT_EQ(lastErrorText(), "");
}

TEST_F(LastError, CodeAndTextAreStoredAsGiven) {
  EXPECT_EQ(setLastErrorCode(7), 0U);
  EXPECT_EQ(setLastErrorString("seven"), 0U);
  expectLastError(7, "seven");
}

} // namespace
} // namespace tervix::testing
