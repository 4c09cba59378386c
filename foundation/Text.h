#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tervix {

// Case is that of ASCII letters, whatever the locale; other bytes are compared and kept as they
// are.

char toLowerCase(char c);
std::string toLowerCase(std::string_view text);
std::string toForwardSlashes(std::string_view path);
std::string toBackslashes(std::string_view path);

bool equalsIgnoringCase(std::string_view a, std::string_view b);
bool startsWithIgnoringCase(std::string_view text, std::string_view prefix);
bool endsWithIgnoringCase(std::string_view text, std::string_view suffix);
bool contains(std::string_view text, std::string_view piece);

// Whether two paths are spelt alike but for case and the kind of their separators.
bool equalsAsPath(std::string_view a, std::string_view b);

// Hashes that are equal for texts that equalsIgnoringCase, or equalsAsPath, takes for equal.
std::uint64_t hashIgnoringCase(std::string_view text);
std::uint64_t hashAsPath(std::string_view path);

// The pieces one behind another, in memory taken once.
std::string joined(std::initializer_list<std::string_view> pieces);

// What is left of text without a prefix or suffix that it has in whatever case.
std::optional<std::string_view> stripPrefix(std::string_view text, std::string_view prefix);
std::optional<std::string_view> stripSuffix(std::string_view text, std::string_view suffix);

// What stands before and after the first character of text that is one of delimiters.
std::optional<std::pair<std::string_view, std::string_view>>
splitAtFirstOf(std::string_view text, std::string_view delimiters);

// text without its last count characters; empty when it has fewer.
std::string_view withoutLast(std::string_view text, std::size_t count);

// Replaces the first place of piece; false when there is none.
bool replaceFirst(std::string& text, std::string_view piece, std::string_view by);

} // namespace tervix
