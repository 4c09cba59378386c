#include "bench/support/Measure.h"

#include <chrono>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include <unistd.h>

namespace tervix::bench {

long long nanosecondsOf(const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point start = Clock::now();
  work();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - start).count();
}

std::size_t residentBytes() {
  std::size_t total = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

int runMain(const std::function<void()>& body) {
  try {
    body();
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}

void require(bool holds, const std::string& what) {
  if (!holds)
    throw std::runtime_error("failed: " + what);
}

} // namespace tervix::bench
