#include "tools/tervix/Style.h"

namespace tervix::tool {

std::string Style::marked(const char* code, const std::string& text) const {
  if (!colours_ || text.empty())
    return text;
  return std::string("\033[").append(code).append("m").append(text).append("\033[0m");
}

} // namespace tervix::tool
