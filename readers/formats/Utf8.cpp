#include "Utf8.h"

#include <cstddef>

namespace tervix::formats {

namespace {

// How many bytes a character has that begins with `first`, and the least code that needs so many.
struct Utf8Form {
  std::size_t bytes;
  char32_t least;
  char32_t bits;
};

Utf8Form utf8Form(unsigned char first) {
  if (first < 0x80U) {
    return {1, 0, first};
  }
  if (first >= 0xC0U && first < 0xE0U) {
    return {2, 0x80, first & 0x1FU};
  }
  if (first >= 0xE0U && first < 0xF0U) {
    return {3, 0x800, first & 0x0FU};
  }
  if (first >= 0xF0U && first < 0xF8U) {
    return {4, 0x10000, first & 0x07U};
  }
  return {0, 0, 0};
}

} // namespace

bool isUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Form form = utf8Form(static_cast<unsigned char>(text[at]));
    if (form.bytes == 0 || form.bytes > text.size() - at) {
      return false;
    }
    char32_t code = form.bits;
    for (const char c : text.substr(at + 1, form.bytes - 1)) {
      if (startsCharacter(c)) {
        return false;
      }
      code = (code << 6U) | (static_cast<unsigned char>(c) & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    if (code < form.least || code > 0x10FFFF || isSurrogate) {
      return false;
    }
    at += form.bytes;
  }
  return true;
}

} // namespace tervix::formats
