#include "tools/tervix/changes/QuotedLines.h"

#include <algorithm>

#include "tools/tervix/changes/Names.h"

namespace tervix::tool {

std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line =
      text.substr(0, end == std::string_view::npos ? text.size() : end + 1);
  text.remove_prefix(line.size());
  return line;
}

bool beginsWith(std::string_view line, std::string_view keyword) {
  return isSameName(line.substr(0, keyword.size()), keyword);
}

std::optional<QuotedPlace> quotedIn(std::string_view line) {
  const std::size_t quote = line.find('"');
  if (quote == std::string_view::npos)
    return std::nullopt;
  const std::size_t end = std::min(line.find_first_of("\"\r\n", quote + 1), line.size());
  return QuotedPlace{quote + 1, end - quote - 1};
}

std::string_view valueIn(std::string_view line) {
  const auto place = quotedIn(line);
  if (!place)
    return {};
  const std::string_view value = line.substr(place->begin, place->length);
  return value.substr(0, value.find('\0'));
}

std::string rewrittenLines(
    std::string_view text,
    const std::function<std::optional<std::string>(std::string_view, const std::string&)>&
        newValue) {
  std::string result;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    const auto place = quotedIn(line);
    const auto changed = place
                             ? newValue(line, std::string(line.substr(place->begin, place->length)))
                             : std::nullopt;
    if (changed)
      result.append(line.substr(0, place->begin))
          .append(*changed)
          .append(line.substr(place->begin + place->length));
    else
      result.append(line);
  }
  return result;
}

} // namespace tervix::tool
