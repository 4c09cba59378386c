#include "QuotedText.h"

#include <algorithm>
#include <array>

namespace tervix::formats {

namespace {

bool isBareKeyCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '-';
}

std::string escaped(char c) {
  constexpr std::string_view shortened = "\b\t\n\f\r\"\\";
  constexpr std::string_view letters = "btnfr\"\\";
  if (const std::size_t i = shortened.find(c); i != std::string_view::npos) {
    return {'\\', letters[i]};
  }
  constexpr std::string_view digits = "0123456789ABCDEF";
  const auto code = static_cast<unsigned char>(c);
  return {'\\', 'u', '0', '0', digits[code >> 4U], digits[code & 0xFU]};
}

} // namespace

std::size_t endOfQuoted(std::string_view text, std::size_t at) {
  const char quote = text[at];
  const std::array<char, 3> three = {quote, quote, quote};
  const std::string_view fence(three.data(), three.size());
  const bool multiLine = text.compare(at, fence.size(), fence) == 0;
  const std::string_view end = multiLine ? fence : fence.substr(0, 1);
  at += end.size();
  while (at < text.size() && text.compare(at, end.size(), end) != 0) {
    if (text[at] == '\n' && !multiLine) {
      return at;
    }
    at += quote == '"' && text[at] == '\\' ? 2U : 1U;
  }
  at += end.size();
  // Up to two quotes right before the closing three belong to the text.
  for (int extra = 0; multiLine && extra < 2 && at < text.size() && text[at] == quote; ++extra) {
    ++at;
  }
  return std::min(at, text.size());
}

std::string inQuotes(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code < ' ' || code == 0x7F || c == '"' || c == '\\') {
      quoted += escaped(c);
    } else {
      quoted += c;
    }
  }
  return quoted += '"';
}

std::string asKey(std::string_view name) {
  const bool bare = !name.empty() && std::all_of(name.begin(), name.end(), isBareKeyCharacter);
  return bare ? std::string(name) : inQuotes(name);
}

} // namespace tervix::formats
