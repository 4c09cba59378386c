#include "FileText.h"

#include "Mistake.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>

namespace tervix::formats {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largestSize = std::uintmax_t{64} * 1024 * 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void refuse(const std::string& file, const char* text) {
  throw Mistake{file, text, 0, 0};
}

// Asked before the file is opened, since opening a pipe would wait for its other end.
void requireRegularFile(const std::string& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  switch (status.type()) {
  case fs::file_type::regular:
    return;
  case fs::file_type::not_found:
    refuse(file, "the file does not exist");
  case fs::file_type::directory:
    refuse(file, "this is a folder, not a file");
  case fs::file_type::none:
    refuse(file, "the file cannot be reached");
  default:
    refuse(file, "this is not a regular file");
  }
}

void requireSize(const std::string& file, std::uintmax_t size) {
  if (size > largestSize) {
    refuse(file, "the file is larger than 64 MiB");
  }
}

// Measured again while it is read: the size told beforehand may be out of date.
std::string readToEnd(const std::string& file, std::istream& stream, std::uintmax_t expected) {
  std::string text;
  text.reserve(static_cast<std::size_t>(expected));
  std::array<char, std::size_t{64} * 1024> block{};
  while (stream.good()) {
    stream.read(block.data(), static_cast<std::streamsize>(block.size()));
    text.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    requireSize(file, text.size());
  }
  if (stream.bad()) {
    refuse(file, "the file cannot be read to its end");
  }
  return text;
}

} // namespace

std::string readFileBytes(const std::string& file) {
  requireRegularFile(file);
  std::error_code error;
  std::uintmax_t size = fs::file_size(file, error);
  if (error) {
    size = 0;
  }
  requireSize(file, size);
  std::ifstream stream(fs::path(file), std::ios::binary);
  if (!stream) {
    refuse(file, "the file cannot be opened for reading");
  }
  return readToEnd(file, stream, size);
}

void requireUnchanged(const std::string& file, std::string_view bytes) {
  if (readFileBytes(file) != bytes) {
    refuse(file, "the file has been changed meanwhile by another program");
  }
}

std::string_view withoutByteOrderMark(std::string_view text) {
  const bool marked = text.substr(0, byteOrderMark.size()) == byteOrderMark;
  return marked ? text.substr(byteOrderMark.size()) : text;
}

} // namespace tervix::formats
