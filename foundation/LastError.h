#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "foundation/ErrorTable.h"

namespace tervix {

// The one last error of the process. Texts are kept up to 1023 characters. Always 0.
unsigned long setLastErrorCode(unsigned long code);
unsigned long getLastErrorCode(unsigned long& code);
unsigned long setLastErrorString(std::string_view text);
unsigned long getLastErrorString(std::string& text);

// Records code with its message, the names put into the template's places in turn, and returns
// code, so that an operation fails with `return raiseError(kFileDoesNotExist, path)`.
unsigned long raiseError(ErrorCode code);
unsigned long raiseError(ErrorCode code, std::string_view name);
unsigned long raiseError(ErrorCode code, std::string_view source, std::string_view target);

// Puts the last error back at the end of a block: for an attempt whose failure is no news.
class LastErrorKept {
public:
  LastErrorKept();
  ~LastErrorKept();
  LastErrorKept(const LastErrorKept&) = delete;
  LastErrorKept& operator=(const LastErrorKept&) = delete;

private:
  unsigned long code_ = 0;
  std::string text_;
};

} // namespace tervix
