#ifndef TERVIX_FORMATS_HOSTILE_TEXT_H
#define TERVIX_FORMATS_HOSTILE_TEXT_H

#include <string>
#include <string_view>

namespace tervix::formats {

// Throws a Mistake for text that is not fit for the TOML parser: text with control characters,
// which is some other kind of file, and keys of so many dotted parts ("a.b.c = 1") that freeing
// the tables nested for them would exhaust the stack. (The parser itself limits how deep values
// nest.)
void refuseHostileText(const std::string& file, std::string_view text);

} // namespace tervix::formats

#endif
