#pragma once

#include <chrono>
#include <cstddef>

namespace tervix::tool {

// One line on standard error that says how far a long work has come; nothing where that is no
// terminal. It is drawn ten times a second at most, and gone when the object is.
class Progress {
public:
  Progress();
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Work goes on: "reading netlists (230)".
  void tell(const char* what, std::size_t count);
  // Takes the line away until something is told again.
  void clear();

private:
  using Clock = std::chrono::steady_clock;

  bool isShown_;
  bool isDrawn_ = false;
  Clock::time_point drawn_;
};

} // namespace tervix::tool
