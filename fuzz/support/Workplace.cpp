#include "fuzz/support/Workplace.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <dlfcn.h>

namespace tervix::fuzz {

namespace fs = std::filesystem;

void require(bool holds, const char* promise, const std::string& detail) {
  if (holds)
    return;
  std::fprintf(stderr, "Broken promise: %s\n%s\n", promise, detail.c_str());
  std::abort();
}

void* designReader() {
  static void* const reader = dlopen(DESIGN_READER_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  require(reader != nullptr, "the design reader is there");
  return reader;
}

const testing::TemporaryFolder& emptyWorkplace() {
  designReader();
  static const testing::TemporaryFolder folder;
  for (const auto& entry : fs::directory_iterator(folder.path()))
    fs::remove_all(entry.path());
  return folder;
}

Files filesIn(const std::string& folder) {
  Files files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string path = entry.path().string();
    if (entry.is_symlink())
      files[path.substr(folder.size())] = "-> " + fs::read_symlink(entry.path()).string();
    else if (entry.is_regular_file())
      files[path.substr(folder.size())] = testing::contentOf(path);
  }
  return files;
}

} // namespace tervix::fuzz
