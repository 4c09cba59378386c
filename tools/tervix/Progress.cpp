#include "tools/tervix/Progress.h"

#include <iostream>

#include "foundation/platform/Console.h"

namespace tervix::tool {
namespace {

constexpr std::chrono::milliseconds kBetween(100);

} // namespace

Progress::Progress() : isShown_(platform::standardErrorTakesProgress()) {}

Progress::~Progress() {
  clear();
}

void Progress::tell(const char* what, std::size_t count) {
  if (!isShown_)
    return;
  const Clock::time_point now = Clock::now();
  if (isDrawn_ && now - drawn_ < kBetween)
    return;
  isDrawn_ = true;
  drawn_ = now;
  std::cerr << "\r\033[K" << what << " (" << count << ")" << std::flush;
}

void Progress::clear() {
  if (isDrawn_)
    std::cerr << "\r\033[K" << std::flush;
  isDrawn_ = false;
}

} // namespace tervix::tool
