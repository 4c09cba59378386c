#include <cstddef>
#include <cwchar>
#include <string>

#include "foundation/platform/windows/Win32.h"

// std::filesystem makes paths of narrow texts by these functions. Those of the run-time library
// take bytes for characters as long as no locale is chosen, and know no UTF-8 even then. Here they
// take the process's code page, as every call of the system does, so that one text names one file.
// The linker prefers them.

namespace {

constexpr std::size_t kIncomplete = static_cast<std::size_t>(-2);
constexpr int kLongestCharacter = 4; // of UTF-8
constexpr wchar_t kReplacement = 0xFFFD;

// The bytes of the first character, of which there are enough; 0 when they make none.
int decoded(const char* text, std::size_t size, wchar_t (&units)[2], int& count) {
  for (int length = 1; length <= kLongestCharacter && static_cast<std::size_t>(length) <= size;
       ++length) {
    count = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text, length, units, 2);
    if (count > 0)
      return length;
  }
  return 0;
}

} // namespace

extern "C" {

// A character beyond the basic plane gives two units: the second one with the last byte.
std::size_t mbrtowc(wchar_t* target, const char* text, std::size_t size, std::mbstate_t* state) {
  static std::mbstate_t own = 0;
  std::mbstate_t& pending = state == nullptr ? own : *state;
  if (text == nullptr) {
    pending = 0;
    return 0;
  }
  if (size == 0)
    return kIncomplete;
  wchar_t unit = static_cast<wchar_t>(pending);
  std::size_t length = 1;
  if (pending != 0) {
    pending = 0;
  } else {
    wchar_t units[2] = {};
    int count = 0;
    length = static_cast<std::size_t>(decoded(text, size, units, count));
    unit = length == 0 ? kReplacement : units[0];
    if (length == 0)
      length = 1;
    if (count == 2) {
      pending = units[1];
      --length;
    }
  }
  if (target != nullptr)
    *target = unit;
  return unit == L'\0' ? 0 : length;
}

std::size_t mbrlen(const char* text, std::size_t size, std::mbstate_t* state) {
  static std::mbstate_t own = 0;
  return mbrtowc(nullptr, text, size, state == nullptr ? &own : state);
}

std::size_t mbsrtowcs(wchar_t* target, const char** text, std::size_t size, std::mbstate_t* state) {
  static std::mbstate_t own = 0;
  const char* next = *text;
  for (std::size_t count = 0; target == nullptr || count < size; ++count) {
    wchar_t unit = L'\0';
    const std::size_t length =
        mbrtowc(&unit, next, std::char_traits<char>::length(next) + 1, state ? state : &own);
    if (target != nullptr)
      target[count] = unit;
    if (length == 0) {
      if (target != nullptr)
        *text = nullptr;
      return count;
    }
    next += length;
  }
  *text = next;
  return size;
}

} // extern "C"
