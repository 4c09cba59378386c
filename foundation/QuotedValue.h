#pragma once

#include <optional>
#include <string_view>

namespace tervix {

// The value of a key line: what follows the line's first double quote, up to the next one or, if
// there is none, to the end of the line. None for an empty value, and for a line that has no
// quote or begins with it.
std::optional<std::string_view> quotedValue(std::string_view line);

} // namespace tervix
