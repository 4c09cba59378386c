#ifndef TERVIX_TEST_READERS_TEMP_FOLDER_H
#define TERVIX_TEST_READERS_TEMP_FOLDER_H

#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

// A folder of its own for one test, gone when the test ends.
class TempFolder {
public:
  std::string path(std::string_view name = "") const { return folder_.path(std::string(name)); }

  // Writes the bytes as they are and returns the file's path.
  std::string write(std::string_view name, std::string_view text) const {
    const std::string file = path(name);
    std::ofstream(file, std::ios::binary).write(text.data(), static_cast<long>(text.size()));
    return file;
  }

private:
  tervix::testing::TemporaryFolder folder_;
};

#endif
