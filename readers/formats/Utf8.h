#ifndef TERVIX_FORMATS_UTF8_H
#define TERVIX_FORMATS_UTF8_H

#include <string_view>

namespace tervix::formats {

bool isUtf8(std::string_view text);

inline bool startsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace tervix::formats

#endif
