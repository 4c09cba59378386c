#include "tools/tervix/Style.h"

#include <array>
#include <cstdio>

namespace tervix::tool {

std::string Style::marked(const char* code, const std::string& text) const {
  if (!colours_ || text.empty())
    return text;
  return std::string("\033[").append(code).append("m").append(text).append("\033[0m");
}

std::string printable(const std::string& text) {
  constexpr unsigned char kFirstPrintable = 0x20;
  constexpr unsigned char kDelete = 0x7f;
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= kFirstPrintable && byte != kDelete) {
      result += c;
      continue;
    }
    std::array<char, 5> spelt{};
    std::snprintf(spelt.data(), spelt.size(), "\\x%02x", static_cast<unsigned>(byte));
    result += spelt.data();
  }
  return result;
}

} // namespace tervix::tool
