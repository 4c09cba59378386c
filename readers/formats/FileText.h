#ifndef TERVIX_FORMATS_FILE_TEXT_H
#define TERVIX_FORMATS_FILE_TEXT_H

#include <string>

namespace tervix::formats {

// The bytes of a regular file, without a UTF-8 byte-order mark. Throws a Mistake without a line
// for anything that is not one, or that is too large for a file that people write.
std::string readFileText(const std::string& file);

} // namespace tervix::formats

#endif
