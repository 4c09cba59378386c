// Paths at which there is no readable project file.

#include "ReaderFixture.h"

#include "tests/support/System.h"

namespace {

class FileKindTest : public ReaderFixture {
protected:
  void expectRefused(const std::string& file, std::string_view message) {
    EXPECT_NE(readSection(file), 0);
    expectUntouchedOutputs();
    expectMistake(message, 0, 0);
  }
};

TEST_F(FileKindTest, MissingFile) {
  expectRefused(folder.path("absent.tvp"), "the file does not exist");
  expectRefused("", "the file does not exist");
  const std::string file = folder.write("file", "");
  expectRefused(file + "/p.tvp", "the file does not exist");
}

TEST_F(FileKindTest, Folder) {
  expectRefused(folder.path(), "this is a folder, not a file");
}

TEST_F(FileKindTest, PipeDoesNotBlock) {
  const std::string pipe = folder.path("pipe.tvp");
  ASSERT_TRUE(tervix::testing::makePipe(pipe));
  expectRefused(pipe, "this is not a regular file");
}

TEST_F(FileKindTest, Device) {
  expectRefused("/dev/zero", "this is not a regular file");
}

TEST_F(FileKindTest, NameTooLong) {
  expectRefused(folder.path(std::string(5000, 'x')), "the file cannot be reached");
}

TEST_F(FileKindTest, FileThatMayNotBeRead) {
  const std::string file = folder.write("p.tvp", "");
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
  std::filesystem::permissions(file, std::filesystem::perms(0));
  const tervix::testing::UnprivilegedUser nobody;
  expectRefused(file, "the file cannot be opened for reading");
}

TEST_F(FileKindTest, FolderThatMayNotBeEntered) {
  const std::string file = folder.write("p.tvp", "");
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0));
  {
    const tervix::testing::UnprivilegedUser nobody;
    expectRefused(file, "the file cannot be reached");
  }
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0700));
}

TEST_F(FileKindTest, FileThatFailsWhileItIsRead) {
  const std::string memory = "/proc/self/mem";
  if (!std::ifstream(memory)) {
    GTEST_SKIP() << "this system has no such file";
  }
  expectRefused(memory, "the file cannot be read to its end");
}

TEST_F(FileKindTest, VeryLargeFile) {
  const std::string file = folder.write("p.tvp", "");
  std::filesystem::resize_file(file, std::uintmax_t{64} * 1024 * 1024 + 1);
  expectRefused(file, "the file is larger than 64 MiB");
}

TEST_F(FileKindTest, LinkToAFileIsFollowed) {
  folder.write("p.tvp", "[\"Design Resources\"]\nFiles = [\"a.dsn\"]\n");
  std::filesystem::create_symlink("p.tvp", folder.path("link.tvp"));
  EXPECT_EQ(readSection(folder.path("link.tvp")), 0);
  EXPECT_EQ(files, (Texts{"before", "a.dsn"}));
}

} // namespace
