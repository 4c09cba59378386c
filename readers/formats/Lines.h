#ifndef TERVIX_FORMATS_LINES_H
#define TERVIX_FORMATS_LINES_H

#include "Changes.h"

namespace tervix::formats {

// The line that holds a place of the text: where it begins, where its line end does, and where the
// next one begins (or the text ends). A byte-order mark is no part of the first.
std::size_t lineBegin(std::string_view text, std::size_t at);
std::size_t lineEnd(std::string_view text, std::size_t at);
std::size_t nextLine(std::string_view text, std::size_t at);

// The line end that a line new at this place needs to look like its neighbours.
std::string_view lineBreakNear(std::string_view text, std::size_t at);

// What brings a line to the column of this place: its blanks, and a blank for anything else.
std::string indentTo(std::string_view text, std::size_t at);

// The first place from `at` that is no blank.
std::size_t skipBlanks(std::string_view text, std::size_t at);

// Whether there are blanks only; and whether there are blanks and line ends only.
bool isBlank(std::string_view piece);
bool isGap(std::string_view piece);

// Puts a line where one begins or the text ends. A text that ends without a line end keeps doing
// so.
Change insertLine(std::string_view text, std::size_t at, const std::string& line);

} // namespace tervix::formats

#endif
