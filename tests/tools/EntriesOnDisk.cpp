#include "tests/tools/EntriesOnDisk.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"

namespace tervix::testing {
namespace {

namespace fs = std::filesystem;

std::string textOf(const timespec& time) {
  return std::to_string(time.tv_sec) + "." + std::to_string(time.tv_nsec);
}

EntryOnDisk entryAt(const fs::path& path) {
  struct stat info {};
  EXPECT_EQ(lstat(path.c_str(), &info), 0) << path;
  const bool isFile = fs::is_regular_file(fs::symlink_status(path));
  return {info.st_ino, info.st_mode, textOf(info.st_mtim), textOf(info.st_ctim),
          isFile ? contentOf(path.string()) : ""};
}

} // namespace

EntriesOnDisk entriesOf(const std::string& folder) {
  EntriesOnDisk entries{{".", entryAt(folder)}};
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    entries.emplace(entry.path().lexically_relative(folder).string(), entryAt(entry.path()));
  return entries;
}

void expectUntouched(const EntriesOnDisk& before, const EntriesOnDisk& after,
                     const std::string& when) {
  for (const auto& [name, entry] : before) {
    const auto found = after.find(name);
    ASSERT_NE(found, after.end()) << name << " is gone after " << when;
    EXPECT_TRUE(found->second == entry) << name << " was written by " << when;
  }
  EXPECT_EQ(after.size(), before.size()) << "something was made by " << when;
}

} // namespace tervix::testing
