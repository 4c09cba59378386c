#pragma once

#include <string>
#include <string_view>

#include "foundation/Text.h"

namespace tervix::platform {

// A path as the system takes it, in the code page of the process. One with a zero byte becomes
// empty, which every call of the system refuses, rather than the name of some other file. A bare
// drive means its root folder, not the folder that the process last used on it.
class NativePath {
public:
  explicit NativePath(std::string_view path)
      : text_(contains(path, std::string_view("\0", 1)) ? std::string() : toBackslashes(path)) {
    if (text_.size() == 2 && text_.back() == ':')
      text_ += '\\';
  }

  const char* get() const { return text_.c_str(); }
  const std::string& text() const { return text_; }

private:
  std::string text_;
};

} // namespace tervix::platform
