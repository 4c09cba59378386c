#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tervix::tool {

// Text whose lines begin with a keyword and hold a value in double quotes, as ".sim" files and
// include lists do.

// Takes the first line with its line end off text.
std::string_view takeLine(std::string_view& text);

// Whether a line begins with a keyword, in any case.
bool beginsWith(std::string_view line, std::string_view keyword);

// Where a line has what stands between its quotes; none without an opening quote.
struct QuotedPlace {
  std::size_t begin;
  std::size_t length;
};
std::optional<QuotedPlace> quotedIn(std::string_view line);
// What it has there, up to a zero byte, at which names end for the library; empty without a quote.
std::string_view valueIn(std::string_view line);

// The text with a new value between the quotes of each line for which newValue, given line and
// value, gives one. Every other byte stays.
std::string rewrittenLines(
    std::string_view text,
    const std::function<std::optional<std::string>(std::string_view, const std::string&)>&
        newValue);

} // namespace tervix::tool
