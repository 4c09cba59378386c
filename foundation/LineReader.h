#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/platform/Platform.h"

namespace tervix {

// Reads a text file line by line. A line of more than 1023 characters comes in pieces, so a file
// of any kind and size can be read in little memory.
class LineReader {
public:
  // The buffer is left as it is: filling it would take longer than reading most files.
  LineReader() {} // NOLINT(modernize-use-equals-default,cppcoreguidelines-pro-type-member-init)

  // Also reads the first lines; a file of less than 4096 characters needs no further look.
  platform::FileReader::Opening open(const std::string& path);

  // The next line or piece, with its line end if it has one; valid until the next call. None at
  // the end of the file, and when reading failed.
  std::optional<std::string_view> next();
  bool failed() const { return failed_; }
  // Goes back to the first line; false when that is gone and the file must be opened again.
  bool rewind();

private:
  void fill();
  void take(const std::optional<std::size_t>& count);

  static constexpr std::size_t kLongestPiece = 1023;

  platform::FileReader file_;
  std::array<char, 4096> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool atEnd_ = false;
  bool failed_ = false;
  bool holdsBeginning_ = false;
};

} // namespace tervix
