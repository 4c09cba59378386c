#ifndef TERVIX_FORMATS_FILE_TEXT_H
#define TERVIX_FORMATS_FILE_TEXT_H

#include <string>
#include <string_view>

namespace tervix::formats {

// The bytes of a regular file. Throws a Mistake without a line for anything that is not one, or
// that is too large for a file that people write.
std::string readFileBytes(const std::string& file);

// Throws a Mistake when these are no longer the bytes of the file.
void requireUnchanged(const std::string& file, std::string_view bytes);

// What follows a UTF-8 byte-order mark, if there is one.
std::string_view withoutByteOrderMark(std::string_view text);

} // namespace tervix::formats

#endif
