#include "tools/tervix/Printable.h"

namespace tervix::tool {
namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7f;

unsigned char byteAt(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

// The second of the two groups of control characters, U+0080 to U+009F, is two bytes each.
bool isSecondGroupControl(std::string_view text, std::size_t at) {
  return byteAt(text, at) == 0xc2 && byteAt(text, at + 1) >= 0x80 && byteAt(text, at + 1) < 0xa0;
}

// U+2028 to U+202E and U+2066 to U+2069 begin a line or turn the text behind them round, so that a
// name reads as another one. Three bytes each.
bool isLayoutControl(std::string_view text, std::size_t at) {
  const unsigned char last = byteAt(text, at + 2);
  return byteAt(text, at) == 0xe2 &&
         ((byteAt(text, at + 1) == 0x80 && last >= 0xa8 && last <= 0xae) ||
          (byteAt(text, at + 1) == 0x81 && last >= 0xa6 && last <= 0xa9));
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

bool isPrintable(std::string_view text, std::size_t at) {
  const unsigned char byte = byteAt(text, at);
  return byte >= kFirstPrintable && byte != kDelete && characterLength(text, at) != 0 &&
         !isSecondGroupControl(text, at) && !isLayoutControl(text, at);
}

std::string hexOf(unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return {kDigits[byte >> 4U], kDigits[byte & 0xfU]};
}

} // namespace

std::string printable(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    if (isPrintable(text, at)) {
      const std::size_t length = characterLength(text, at);
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
  for (std::size_t at = 0; at < json.size(); ++at) {
    if (isSecondGroupControl(json, at)) {
      result += "\\u00" + hexOf(byteAt(json, ++at));
    } else if (isLayoutControl(json, at)) {
      const unsigned high = byteAt(json, ++at) & 1U; // of the code's lower byte
      const unsigned low = byteAt(json, ++at) & 0x3fU;
      result += "\\u20" + hexOf(static_cast<unsigned char>(high << 6U | low));
    } else if (byteAt(json, at) == kDelete) {
      result += "\\u00" + hexOf(kDelete);
    } else {
      result += json[at];
    }
  }
  return result;
}

} // namespace tervix::tool
