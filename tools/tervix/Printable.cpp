#include "tools/tervix/Printable.h"

#include <algorithm>
#include <array>

namespace tervix::tool {
namespace {

unsigned char byteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

// How many bytes the UTF-8 character at a place has; 0 when there is none.
std::size_t characterLength(std::string_view text, std::size_t at) {
  const unsigned char lead = byteAt(text, at);
  if (lead < 0x80)
    return 1;
  if (lead < 0xc2 || lead > 0xf4)
    return 0;
  const std::size_t length = lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
  for (std::size_t next = 1; next < length; ++next)
    if ((byteAt(text, at + next) & 0xc0U) != 0x80)
      return 0;
  return length;
}

char32_t characterAt(std::string_view text, std::size_t at, std::size_t length) {
  constexpr std::array<unsigned, 5> kBitsOfLead = {0, 0x7f, 0x1f, 0x0f, 0x07};
  char32_t character = byteAt(text, at) & kBitsOfLead.at(length);
  for (std::size_t next = 1; next < length; ++next)
    character = character << 6U | (byteAt(text, at + next) & 0x3fU);
  return character;
}

// Controls of terminals, and what is not seen itself but breaks lines, turns the text round or
// makes a name pass for another. Joiners (U+200C, U+200D) belong to the writing of languages.
struct Range {
  char32_t first;
  char32_t last;
};
constexpr std::array<Range, 9> kHidden = {{{0, 0x1f},
                                           {0x7f, 0x9f},
                                           {0x61c, 0x61c},
                                           {0x200b, 0x200b},
                                           {0x200e, 0x200f},
                                           {0x2028, 0x202e},
                                           {0x2060, 0x2064},
                                           {0x2066, 0x2069},
                                           {0xfeff, 0xfeff}}};

bool isHidden(char32_t character) {
  return std::any_of(kHidden.begin(), kHidden.end(), [&](const Range& range) {
    return range.first <= character && character <= range.last;
  });
}

std::string hexOf(unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return {kDigits[byte >> 4U], kDigits[byte & 0xfU]};
}

} // namespace

std::string printable(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = characterLength(text, at);
    if (length != 0 && !isHidden(characterAt(text, at, length))) {
      result += text.substr(at, length);
      at += length;
    } else {
      result += "\\x" + hexOf(byteAt(text, at++));
    }
  }
  return result;
}

bool isUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = characterLength(text, at);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

std::string inQuotes(std::string_view text) {
  return "\"" + printable(text) + "\"";
}

std::string shownFrom(const std::string& folder, const std::string& path) {
  const std::string prefix = folder + "/";
  const bool isInside = path.size() > prefix.size() && path.compare(0, prefix.size(), prefix) == 0;
  return printable(isInside ? path.substr(prefix.size()) : path);
}

std::string withControlsEscaped(const std::string& json) {
  std::string result;
  for (std::size_t at = 0; at < json.size();) {
    const std::size_t length = std::max<std::size_t>(characterLength(json, at), 1);
    const char32_t character = characterAt(json, at, length);
    // Line ends are those of the layout: in texts they are escaped already.
    if (character != '\n' && isHidden(character))
      result += "\\u" + hexOf(static_cast<unsigned char>(character >> 8U)) +
                hexOf(static_cast<unsigned char>(character & 0xffU));
    else
      result.append(json, at, length);
    at += length;
  }
  return result;
}

} // namespace tervix::tool
