#include "tests/tools/EntriesOnDisk.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace tervix::testing {
namespace fs = std::filesystem;

EntriesOnDisk entriesOf(const std::string& folder) {
  EntriesOnDisk entries{{".", entryAt(folder)}};
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    entries.emplace(entry.path().lexically_relative(folder).string(),
                    entryAt(entry.path().string()));
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
