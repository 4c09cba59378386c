#pragma once

#include <string>

#include "foundation/Text.h"

namespace tervix::platform {

// A path as the system takes it, valid as long as the path it was made of. One with a zero byte
// becomes empty, which every call of the system refuses, rather than the name of some other file.
class NativePath {
public:
  explicit NativePath(const std::string& path) : path_(path.c_str()) {
    if (path.find('\0') != std::string::npos)
      path_ = "";
    else if (path.find('\\') != std::string::npos)
      path_ = (text_ = toForwardSlashes(path)).c_str();
  }
  explicit NativePath(std::string&&) = delete;
  NativePath(const NativePath&) = delete;
  NativePath& operator=(const NativePath&) = delete;

  const char* get() const { return path_; }

private:
  std::string text_;
  const char* path_;
};

} // namespace tervix::platform
