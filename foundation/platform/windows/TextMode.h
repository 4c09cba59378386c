#pragma once

// Text as the run-time library's text mode has it: "\n" in memory, "\r\n" on disk. A "\r" that no
// "\n" follows stays.

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tervix::platform {

inline std::string withDiskLineEnds(std::string_view content) {
  std::string text;
  text.reserve(content.size() +
               static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n')));
  for (const char c : content) {
    if (c == '\n')
      text += '\r';
    text += c;
  }
  return text;
}

// Turns "\r\n" into "\n" in place and returns the new size. A "\r" at the end stays.
inline std::size_t joinLineEnds(char* text, std::size_t size) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < size; ++i) {
    const bool isJoined = text[i] == '\r' && i + 1 < size && text[i + 1] == '\n';
    if (!isJoined)
      text[kept++] = text[i];
  }
  return kept;
}

// Reads text from a file whose read(buffer, size) gives the bytes on disk.
template <class File> class TextReader {
public:
  explicit TextReader(File& file) : file_(file) {}

  // At most size characters, of at least one; nullopt on an error, 0 at the end.
  std::optional<std::size_t> read(char* buffer, std::size_t size) {
    std::size_t count = 0;
    if (std::exchange(hasAhead_, false))
      buffer[count++] = ahead_;
    const auto more = file_.read(buffer + count, size - count);
    if (!more)
      return std::nullopt;
    count = joinLineEnds(buffer, count + *more);
    if (count > 0 && buffer[count - 1] == '\r' && !completeLineEnd(buffer[count - 1]))
      return std::nullopt;
    return count;
  }

private:
  // What follows a "\r" at the end of a block decides what it is.
  bool completeLineEnd(char& last) {
    char next = '\0';
    const auto count = file_.read(&next, 1);
    if (!count)
      return false;
    if (*count == 0)
      return true;
    if (next == '\n')
      last = next;
    hasAhead_ = next != '\n';
    ahead_ = next;
    return true;
  }

  File& file_;
  bool hasAhead_ = false; // a character was read from the file already, and not handed out yet
  char ahead_ = '\0';
};

} // namespace tervix::platform
