#include "tests/support/TemporaryFolder.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace tervix::testing {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  static std::atomic<int> count{0};
  const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
  const fs::path place = fs::temp_directory_path() /
                         ("tervix-" + std::to_string(ticks) + "-" + std::to_string(++count));
  fs::create_directories(place);
  path_ = fs::canonical(place).generic_string();
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::file(const std::string& name, const std::string& content) const {
  const std::string full = path(name);
  writeFile(full, content);
  return full;
}

std::string TemporaryFolder::folder(const std::string& name) const {
  const std::string full = path(name);
  fs::create_directories(full);
  return full;
}

bool isFile(const std::string& path) {
  return fs::is_regular_file(path);
}
bool isFolder(const std::string& path) {
  return fs::is_directory(path);
}

std::string contentOf(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << path;
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

void writeFile(const std::string& path, const std::string& content) {
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream stream(path, std::ios::binary);
  stream << content;
  ASSERT_TRUE(stream.flush().good()) << path;
}

std::map<std::string, std::string> snapshotOf(const std::string& folder) {
  std::map<std::string, std::string> entries;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = fs::relative(entry.path(), folder).generic_string();
    if (entry.is_regular_file())
      entries[name] = contentOf(entry.path().generic_string());
    else if (entry.is_directory() && fs::is_empty(entry.path()))
      entries[name + "/"] = "";
  }
  return entries;
}

} // namespace tervix::testing
