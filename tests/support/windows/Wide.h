#pragma once

#include <string>

#include "foundation/platform/windows/Win32.h"

namespace tervix::testing {

// UTF-8, as paths in tests are, as the system has texts.
inline std::wstring wide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring result(text.size(), L'\0');
  result.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), size)));
  return result;
}

} // namespace tervix::testing
