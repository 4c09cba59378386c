#include "foundation/QuotedValue.h"

namespace tervix {

std::optional<std::string_view> quotedValue(std::string_view line) {
  // Text ends at a zero byte; what follows in a damaged file is no part of a path.
  line = line.substr(0, line.find('\0'));
  const std::size_t quote = line.find('"');
  if (quote == std::string_view::npos || quote == 0)
    return std::nullopt;
  line.remove_prefix(quote + 1);
  line = line.substr(0, line.find('"'));
  if (line.empty())
    return std::nullopt;
  return line;
}

} // namespace tervix
