#include "foundation/LastError.h"

#include <algorithm>
#include <array>

namespace tervix {
namespace {

// Plain storage with nothing to destroy: a profile that a program destroys at its very end may
// still record an error.
struct LastError {
  unsigned long code = 0;
  std::size_t length = 0;
  std::array<char, 1023> text{};
};

LastError lastError;

std::string fillTemplate(std::string_view text, std::initializer_list<std::string_view> names) {
  constexpr std::string_view kPlace = "%s";
  std::string message;
  for (const std::string_view name : names) {
    const std::size_t place = text.find(kPlace);
    if (place == std::string_view::npos)
      break;
    message.append(text.substr(0, place)).append(name);
    text.remove_prefix(place + kPlace.size());
  }
  return message.append(text);
}

unsigned long raise(ErrorCode code, std::initializer_list<std::string_view> names) {
  std::string text;
  long category = 0;
  getErrorTemplate(text, category, code);
  setLastErrorCode(code);
  setLastErrorString(fillTemplate(text, names));
  return code;
}

} // namespace

unsigned long setLastErrorCode(unsigned long code) {
  lastError.code = code;
  return 0;
}

unsigned long getLastErrorCode(unsigned long& code) {
  code = lastError.code;
  return 0;
}

unsigned long setLastErrorString(std::string_view text) {
  lastError.length = std::min(text.size(), lastError.text.size());
  std::copy_n(text.begin(), lastError.length, lastError.text.begin());
  return 0;
}

unsigned long getLastErrorString(std::string& text) {
  text.assign(lastError.text.data(), lastError.length);
  return 0;
}

LastErrorKept::LastErrorKept() {
  getLastErrorCode(code_);
  getLastErrorString(text_);
}

LastErrorKept::~LastErrorKept() {
  setLastErrorCode(code_);
  setLastErrorString(text_);
}

unsigned long raiseError(ErrorCode code) {
  return raise(code, {});
}

unsigned long raiseError(ErrorCode code, std::string_view name) {
  return raise(code, {name});
}

unsigned long raiseError(ErrorCode code, std::string_view source, std::string_view target) {
  return raise(code, {source, target});
}

} // namespace tervix
