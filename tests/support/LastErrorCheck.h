#pragma once

#include <string>

#include <gtest/gtest.h>

#include "foundation/LastError.h"

namespace tervix::testing {

// A temporary as the lvalue that the library's functions take.
inline std::string& text(std::string&& value) {
  return value;
}

// Makes the last error that of a process in which nothing failed yet.
inline void forgetLastError() {
  setLastErrorCode(0);
  setLastErrorString("");
}

inline unsigned long lastErrorCode() {
  unsigned long code = 0;
  EXPECT_EQ(getLastErrorCode(code), 0U);
  return code;
}

inline std::string lastErrorText() {
  std::string message;
  EXPECT_EQ(getLastErrorString(message), 0U);
  return message;
}

// Whether a failure with this code and message, and no other, was recorded.
inline void expectLastError(unsigned long code, const std::string& message) {
  EXPECT_EQ(lastErrorCode(), code);
  EXPECT_EQ(lastErrorText(), message);
}

inline void expectNoLastError() {
  expectLastError(0, "");
}

} // namespace tervix::testing
