#include "ReplaceFile.h"

#include "Mistake.h"

#include <filesystem>
#include <fstream>
#include <random>

namespace tervix::formats {

namespace {

namespace fs = std::filesystem;

void require(bool condition, const std::string& file, const char* otherwise) {
  if (!condition) {
    throw Mistake{file, otherwise, 0, 0};
  }
}

// A file of a name that no other has; gone at the end, unless it got another name.
class TemporaryFile {
public:
  explicit TemporaryFile(const fs::path& folder) {
    std::random_device random;
    do {
      path_ = folder / (".tervix-" + std::to_string(random()) + std::to_string(random()) + ".tmp");
    } while (fs::exists(fs::symlink_status(path_, ignored_)));
  }
  ~TemporaryFile() { fs::remove(path_, ignored_); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const fs::path& path() const { return path_; }

private:
  fs::path path_;
  std::error_code ignored_;
};

// Replacing a file would succeed even where writing to it is not allowed.
bool isWritable(const fs::path& file) {
  return std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).is_open();
}

// Permissions come first, lest others read meanwhile what they may not.
bool write(const fs::path& file, std::string_view text, fs::perms permissions) {
  std::ofstream stream(file, std::ios::binary);
  std::error_code error;
  fs::permissions(file, permissions, error);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  stream.close();
  return stream.good() && !error;
}

} // namespace

void replaceFile(const std::string& file, std::string_view text) {
  std::error_code error;
  const fs::path target = fs::canonical(file, error);
  require(!error, file, "the file cannot be reached");
  const fs::perms permissions = fs::status(target, error).permissions();
  require(!error, file, "the file cannot be reached");
  require(isWritable(target), file, "the file cannot be opened for writing");
  const TemporaryFile temporary(target.parent_path());
  require(write(temporary.path(), text, permissions), file,
          "the new text cannot be written to the file's folder; the file is as it was");
  fs::rename(temporary.path(), target, error);
  require(!error, file, "the file cannot be replaced; it is as it was");
}

} // namespace tervix::formats
