#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tervix::tool {

// "1.2 MB", in powers of ten.
std::string sizeText(std::uintmax_t bytes);

// One line on standard error that says how far the copying of files has come; nothing at all where
// that is no terminal. It is drawn ten times a second at most, and gone when the object is.
class ProgressLine {
public:
  ProgressLine(bool isWanted, std::size_t files, std::uintmax_t bytes);
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // Another file of that size begins.
  void next(std::uintmax_t size);

private:
  using Clock = std::chrono::steady_clock;

  bool isShown_;
  std::size_t files_;
  std::uintmax_t bytes_;
  std::size_t filesDone_ = 0;
  std::uintmax_t bytesDone_ = 0;
  std::uintmax_t begun_ = 0;
  bool isDrawn_ = false;
  Clock::time_point drawn_;
};

} // namespace tervix::tool
