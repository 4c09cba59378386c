#pragma once

#include <string>
#include <string_view>

namespace tervix::tool {

// text with its control characters, others that are not seen, and the bytes that are no UTF-8
// spelt out (as \x1b), so that a strange file name can neither drive the terminal nor, by marks
// that turn the text round, pass for another.
std::string printable(std::string_view text);

bool isUtf8(std::string_view text);

// text as a person's message names a file: printable and between quotes.
std::string inQuotes(std::string_view text);

// A path as a person is shown it: one inside the folder as seen from there.
std::string shownFrom(const std::string& folder, const std::string& path);

// JSON text with the characters escaped that printable spells out and JSON allows as they are.
std::string withControlsEscaped(const std::string& json);

} // namespace tervix::tool
