#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/EntriesOnDisk.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

std::string textOf(const timespec& time) {
  return std::to_string(time.tv_sec) + "." + std::to_string(time.tv_nsec);
}

} // namespace

EntryOnDisk entryAt(const std::string& path) {
  struct stat info {};
  EXPECT_EQ(lstat(path.c_str(), &info), 0) << path;
  const bool isFile = fs::is_regular_file(fs::symlink_status(path));
  return {info.st_ino, info.st_mode, textOf(info.st_mtim), textOf(info.st_ctim),
          isFile ? contentOf(path) : ""};
}

} // namespace tervix::testing
