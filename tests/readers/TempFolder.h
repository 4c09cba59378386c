#ifndef TERVIX_TEST_READERS_TEMP_FOLDER_H
#define TERVIX_TEST_READERS_TEMP_FOLDER_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

// A folder of its own for one test, gone when the test ends.
class TempFolder {
public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "readers-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
      throw std::runtime_error("no temporary folder");
    }
    folder_ = pattern;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string path(std::string_view name = "") const { return (folder_ / name).string(); }

  // Writes the bytes as they are and returns the file's path.
  std::string write(std::string_view name, std::string_view text) const {
    const std::string file = path(name);
    std::ofstream(file, std::ios::binary).write(text.data(), static_cast<long>(text.size()));
    return file;
  }

private:
  std::filesystem::path folder_;
};

#endif
