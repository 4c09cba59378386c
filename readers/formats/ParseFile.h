#ifndef TERVIX_FORMATS_PARSE_FILE_H
#define TERVIX_FORMATS_PARSE_FILE_H

#include "Toml.h"

#include <string>
#include <string_view>

namespace tervix::formats {

// What a TOML file holds. Each node's source() is its place in the file, in lines and characters
// from 1, a byte-order mark not counted. Throws a Mistake for a file that cannot be read and for
// text that is not TOML.
toml::table parseFile(const std::string& file);

// The same of a text that has been read already; `file` is for the mistake.
toml::table parseText(const std::string& file, std::string_view text);

} // namespace tervix::formats

#endif
