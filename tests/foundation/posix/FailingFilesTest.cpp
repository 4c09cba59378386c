#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "TervixFiles.h"
#include "foundation/LineReader.h"
#include "tests/support/LastErrorCheck.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/posix/FailingSystem.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;
using Opening = platform::FileReader::Opening;
using Snapshot = std::map<std::string, std::string>;

class FailingFiles : public ::testing::Test {
protected:
  std::string fifo(const std::string& name) const {
    const std::string path = folder_.path(name);
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
  }
  Snapshot snapshot() const { return snapshotOf(folder_.path()); }

  const TemporaryFolder folder_;
};

TEST_F(FailingFiles, ACopyOntoAFullDiskFails) {
  std::string source = folder_.file("source", std::string(20000, 'x'));
  std::string target = folder_.path("target");
  unsigned long status = 0;
  {
    const FullDisk full(10000);
    status = cpFile(source, target);
  }
  EXPECT_EQ(status, 1U);
  EXPECT_EQ(fs::file_size(target), 10000U); // what was written stays
  EXPECT_EQ(fs::file_size(source), 20000U);
}

TEST_F(FailingFiles, ACopyOfAFileThatCannotBeReadFails) {
  std::string unreadable = "/proc/self/mem"; // opens, and then fails on every read at its start
  if (!fs::exists(unreadable))
    GTEST_SKIP() << "needs " << unreadable;
  EXPECT_EQ(cpFile(unreadable, text(folder_.path("target"))), 1U);
}

TEST_F(FailingFiles, ReadingThatFailsIsNotTheEndOfTheFile) {
  if (!fs::exists("/proc/self/mem"))
    GTEST_SKIP() << "needs /proc/self/mem";
  LineReader reader;
  ASSERT_EQ(reader.open("/proc/self/mem"), Opening::kOpened);
  EXPECT_EQ(reader.next(), std::nullopt);
  EXPECT_TRUE(reader.failed());
  EXPECT_EQ(reader.next(), std::nullopt);
}

TEST_F(FailingFiles, OpeningThatFailsForTheSystemsSakeIsNotAMissingFile) {
  const std::string file = folder_.file("file");
  LineReader reader;
  Opening opening = Opening::kOpened;
  {
    const NoFreeDescriptor none;
    opening = reader.open(file);
  }
  EXPECT_EQ(opening, Opening::kFailed);
}

TEST_F(FailingFiles, WithoutADescriptorNothingIsCopiedOrListed) {
  std::string source = folder_.file("source", "x");
  std::string target = folder_.file("target", "kept");
  std::string path = folder_.path();
  _dirdesc* handle = nullptr;
  unsigned long copied = 0;
  unsigned long opened = 0;
  {
    const NoFreeDescriptor none;
    copied = cpFile(source, target);
    opened = openDir(path, handle);
  }
  EXPECT_EQ(copied, 1U);
  EXPECT_EQ(opened, 1U);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(contentOf(target), "kept");
}

// None of these may wait for another program at the other end.
TEST_F(FailingFiles, AFifoIsNeitherReadNorWritten) {
  std::string pipe = fifo("pipe");
  std::string file = folder_.file("file", "kept");
  bool exists = true;
  filePathExists(pipe, exists);
  EXPECT_FALSE(exists);
  dirPathExists(pipe, exists);
  EXPECT_TRUE(exists);
  EXPECT_EQ(cpFile(pipe, file), 1U);
  EXPECT_EQ(cpFile(file, pipe), 1U);
  LineReader reader;
  EXPECT_EQ(reader.open(pipe), Opening::kNoReadableFile);
  EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(FailingFiles, AFifoInACopiedFolderStopsTheCopy) {
  folder_.folder("source");
  fifo("source/pipe.sim");
  EXPECT_EQ(cpDir(text(folder_.path("source")), text(folder_.path("target"))), 1U);
}

TEST_F(FailingFiles, ADeviceIsNoFile) {
  std::string file = folder_.file("file", "kept");
  for (const char* device : {"/dev/null", "/dev/full", "/dev/zero"}) {
    std::string path = device;
    EXPECT_EQ(cpFile(file, path), 1U) << device;
    EXPECT_EQ(cpFile(path, file), 1U) << device;
  }
  EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(FailingFiles, AFileMovesToAnotherDevice) {
  folder_.folder("far");
  std::string file = folder_.file("file", "content");
  std::string target = folder_.file("far/file", "former");
  const SeparateDevice far(folder_.path("far"));
  EXPECT_EQ(mvFile(file, target), 0U);
  EXPECT_EQ(snapshot(), (Snapshot{{"far/file", "content"}}));
}

TEST_F(FailingFiles, AFileMovesToARealOtherDevice) {
  const fs::path shared = "/dev/shm";
  struct stat here {};
  struct stat there {};
  if (stat(folder_.path().c_str(), &here) != 0 || stat(shared.c_str(), &there) != 0 ||
      here.st_dev == there.st_dev)
    GTEST_SKIP() << "needs a second device at " << shared;
  const std::string far = shared / fs::path(folder_.path()).filename();
  std::string target = far + "/file";
  fs::create_directory(far);
  EXPECT_EQ(mvFile(text(folder_.file("file", "content")), target), 0U);
  EXPECT_EQ(snapshotOf(far), (Snapshot{{"file", "content"}}));
  EXPECT_EQ(mvFile(target, text(folder_.path("back"))), 0U);
  EXPECT_EQ(snapshot(), (Snapshot{{"back", "content"}}));
  fs::remove_all(far);
}

TEST_F(FailingFiles, AMoveToAFullOtherDeviceLosesNothing) {
  folder_.folder("far");
  std::string file = folder_.file("file", std::string(20000, 'x'));
  std::string target = folder_.file("far/file", "former");
  const Snapshot before = snapshot();
  unsigned long status = 0;
  {
    const SeparateDevice far(folder_.path("far"));
    const FullDisk full(10000);
    status = mvFile(file, target);
  }
  EXPECT_EQ(status, 1U);
  EXPECT_EQ(snapshot(), before);
}

TEST_F(FailingFiles, AMoveThatCannotDeleteTheOldFileHasArrivedAllTheSame) {
  folder_.folder("far");
  std::string file = folder_.file("file", "content");
  std::string target = folder_.path("far/file");
  const SeparateDevice far(folder_.path("far"));
  const UndeletableFile kept(file);
  EXPECT_EQ(mvFile(file, target), 0U);
  EXPECT_EQ(snapshot(), (Snapshot{{"file", "content"}, {"far/file", "content"}}));
}

TEST_F(FailingFiles, AFolderDoesNotMoveToAnotherDevice) {
  folder_.folder("far");
  folder_.file("sub/x.sim", "x");
  const Snapshot before = snapshot();
  const SeparateDevice far(folder_.path("far"));
  EXPECT_EQ(mvFile(text(folder_.path("sub")), text(folder_.path("far/sub"))), 1U);
  EXPECT_EQ(snapshot(), before);
}

TEST_F(FailingFiles, AnUndeletableFileStays) {
  std::string file = folder_.file("file", "kept");
  const UndeletableFile kept(file);
  EXPECT_EQ(rmFile(file), 1U);
  EXPECT_EQ(contentOf(file), "kept");
}

TEST_F(FailingFiles, AFileThatMayNotBeReadDoesNotCountAsOne) {
  std::string file = folder_.file("file", "secret");
  std::string target = folder_.file("target", "kept");
  fs::permissions(file, fs::perms::none);
  bool exists = true;
  bool there = false;
  unsigned long copied = 0;
  bool inForce = false;
  {
    const UnprivilegedUser user;
    inForce = user.isInForce();
    filePathExists(file, exists);
    dirPathExists(file, there);
    copied = cpFile(file, target);
  }
  fs::permissions(file, fs::perms::owner_all);
  if (!inForce)
    GTEST_SKIP() << "root cannot become another user here";
  EXPECT_FALSE(exists);
  EXPECT_TRUE(there);
  EXPECT_EQ(copied, 1U);
  EXPECT_EQ(contentOf(target), "kept");
}

} // namespace
} // namespace tervix::testing
