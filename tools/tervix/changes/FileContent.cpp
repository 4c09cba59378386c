#include "tools/tervix/changes/FileContent.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "TervixFiles.h"
#include "foundation/platform/Durability.h"
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

bool isThere(const std::string& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

bool isBeginningOf(const std::string& path, const std::string& whole) {
  std::ifstream part(path, std::ios::binary);
  std::ifstream all(whole, std::ios::binary);
  constexpr std::size_t kBlock = 65536;
  std::string partBlock(kBlock, '\0');
  std::string wholeBlock(kBlock, '\0');
  while (part && all) {
    part.read(partBlock.data(), kBlock);
    all.read(wholeBlock.data(), kBlock);
    const auto count = static_cast<std::size_t>(part.gcount());
    if (part.gcount() > all.gcount() || partBlock.compare(0, count, wholeBlock, 0, count) != 0)
      return false;
  }
  return part.eof() && !part.bad() && !all.bad();
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
  if (isThere(path))
    throw Failure(inQuotes(path) + " is there already");
  writeStream(path, content);
}

std::string nameBeside(const std::string& path) {
  const fs::path place = fs::weakly_canonical(path);
  fs::path name = place.parent_path() / (".tervix-" + place.filename().string());
  for (int attempt = 1; isThere(name.string()); ++attempt)
    name = place.parent_path() /
           (".tervix-" + std::to_string(attempt) + "-" + place.filename().string());
  return name.generic_string();
}

void stageFile(const std::string& path, const std::string& staged, const std::string& content) {
  // That the new content comes as another file must not get round a protection of the old one.
  if (!std::ofstream(path, std::ios::binary | std::ios::app))
    throw Failure(inQuotes(path) + " may not be written");
  writeStream(staged, content);
  std::error_code error;
  fs::permissions(staged, fs::status(path).permissions(), error);
  if (error || !platform::flushFile(staged)) {
    fs::remove(staged, error);
    throw Failure(inQuotes(path) + " could not be rewritten");
  }
}

void putInPlace(const std::string& staged, const std::string& path) {
  std::error_code error;
  fs::rename(staged, fs::canonical(path), error);
  if (error) {
    std::error_code ignored;
    fs::remove(staged, ignored);
    throw Failure(inQuotes(path) + " could not be rewritten: " + error.message());
  }
}

void writeFile(const std::string& path, const std::string& content) {
  const std::string staged = nameBeside(path);
  stageFile(path, staged, content);
  putInPlace(staged, path);
}

void writeWholeFile(const std::string& path, const std::string& content) {
  if (isThere(path)) {
    writeFile(path, content);
    return;
  }
  const std::string staged = nameBeside(path);
  writeStream(staged, content);
  std::error_code error;
  if (platform::flushFile(staged))
    fs::rename(staged, path, error);
  else
    error = std::make_error_code(std::errc::io_error);
  if (error) {
    std::error_code ignored;
    fs::remove(staged, ignored);
    throw Failure(inQuotes(path) + " could not be written: " + error.message());
  }
}

void copyFile(const std::string& source, const std::string& target) {
  std::string from = source;
  std::string to = target;
  const bool isNew = !isThere(target);
  if (cpFile(from, to) == 0 && haveSameContent(source, target))
    return;
  // What came of it need not be the beginning of the source: that may have changed meanwhile. Later
  // nobody could tell whose file it is.
  std::error_code ignored;
  if (isNew)
    fs::remove(target, ignored);
  throw Failure(inQuotes(source) + " could not be copied to " + inQuotes(target));
}

} // namespace tervix::tool
