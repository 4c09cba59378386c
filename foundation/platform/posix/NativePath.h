#pragma once

#include <string>
#include <string_view>

#include "foundation/Text.h"

namespace tervix::platform {

// A path as the system takes it. One with a zero byte becomes empty, which every call of the
// system refuses, rather than the name of some other file.
class NativePath {
public:
  explicit NativePath(std::string_view path)
      : text_(contains(path, std::string_view("\0", 1)) ? std::string() : toForwardSlashes(path)) {}

  const char* get() const { return text_.c_str(); }

private:
  std::string text_;
};

} // namespace tervix::platform
