#ifndef TERVIX_FORMATS_REPLACE_FILE_H
#define TERVIX_FORMATS_REPLACE_FILE_H

#include <string>
#include <string_view>

namespace tervix::formats {

// Gives a file new bytes, all of them or, throwing a Mistake, none: they are written to a file
// beside it that then takes its place and its permissions. A symbolic link stays one.
void replaceFile(const std::string& file, std::string_view text);

} // namespace tervix::formats

#endif
