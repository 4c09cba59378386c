#include "tools/tervix/changes/FileContent.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "TervixFiles.h"
#include "tools/tervix/Failure.h"
#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

namespace fs = std::filesystem;

void writeStream(const std::string& path, const std::string& content) {
  std::ofstream stream(path, std::ios::binary | std::ios::trunc);
  stream << content;
  stream.close();
  if (!stream) {
    std::error_code error;
    fs::remove(path, error);
    throw Failure(inQuotes(path) + " could not be written");
  }
}

std::string unusedNameBeside(const fs::path& path) {
  fs::path name = path.parent_path() / (".tervix-" + path.filename().string());
  for (int attempt = 1; fs::exists(fs::symlink_status(name)); ++attempt)
    name = path.parent_path() /
           (".tervix-" + std::to_string(attempt) + "-" + path.filename().string());
  return name.generic_string();
}

} // namespace

std::string contentOf(const std::string& path) {
  std::string copy = path;
  bool isFile = false;
  filePathExists(copy, isFile);
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream content;
  if (isFile && fs::file_size(path) != 0)
    content << stream.rdbuf();
  if (!isFile || !stream || !content)
    throw Failure(inQuotes(path) + " could not be read");
  return content.str();
}

bool haveSameContent(const std::string& a, const std::string& b) {
  std::ifstream first(a, std::ios::binary);
  std::ifstream second(b, std::ios::binary);
  constexpr std::size_t kBlock = 65536;
  std::string firstBlock(kBlock, '\0');
  std::string secondBlock(kBlock, '\0');
  while (first && second) {
    first.read(firstBlock.data(), kBlock);
    second.read(secondBlock.data(), kBlock);
    if (first.gcount() != second.gcount() || firstBlock != secondBlock)
      return false;
  }
  return first.eof() && second.eof();
}

void writeNewFile(const std::string& path, const std::string& content) {
  if (fs::exists(fs::symlink_status(path)))
    throw Failure(inQuotes(path) + " is there already");
  writeStream(path, content);
}

void writeFile(const std::string& path, const std::string& content) {
  const fs::path place = fs::canonical(path);
  // That the new content comes as another file must not get round a protection of the old one.
  if (!std::ofstream(place, std::ios::binary | std::ios::app))
    throw Failure("\"" + path + "\" may not be written");
  const std::string written = unusedNameBeside(place);
  writeStream(written, content);
  std::error_code error;
  fs::permissions(written, fs::status(place).permissions(), error);
  if (!error)
    fs::rename(written, place, error);
  if (error) {
    std::error_code ignored;
    fs::remove(written, ignored);
    throw Failure(inQuotes(path) + " could not be rewritten: " + error.message());
  }
}

void copyFile(const std::string& source, const std::string& target) {
  std::string from = source;
  std::string to = target;
  if (cpFile(from, to) != 0 || !haveSameContent(source, target))
    throw Failure(inQuotes(source) + " could not be copied to " + inQuotes(target));
}

} // namespace tervix::tool
