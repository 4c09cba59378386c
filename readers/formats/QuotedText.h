#ifndef TERVIX_FORMATS_QUOTED_TEXT_H
#define TERVIX_FORMATS_QUOTED_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tervix::formats {

// Where text in quotes of any of TOML's four kinds ends, which begins with the quote at `at`: past
// its last quote, or where it breaks off.
std::size_t endOfQuoted(std::string_view text, std::size_t at);

// Text between double quotes, on one line, with everything escaped that needs it.
std::string inQuotes(std::string_view text);

// The name of a table or key, in quotes only where it needs them.
std::string asKey(std::string_view name);

} // namespace tervix::formats

#endif
