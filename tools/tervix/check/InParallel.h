#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <future>
#include <system_error>
#include <thread>
#include <vector>

namespace tervix::tool {

// Does work(0) to work(count - 1), on several threads where that is worth it: most of the time of
// reading thousands of small files goes by in the system. The calls must not touch each other's
// data. What one of them throws is thrown here.
template <class Work> void inParallel(std::size_t count, const Work& work) {
  constexpr std::size_t kShare = 64; // of one thread at a time
  std::atomic<std::size_t> next{0};
  const auto takeShares = [&] {
    for (std::size_t begin = next.fetch_add(kShare); begin < count; begin = next.fetch_add(kShare))
      for (std::size_t i = begin; i < std::min(begin + kShare, count); ++i)
        work(i);
  };
  const std::size_t shares = (count + kShare - 1) / kShare;
  const auto threads = std::min<std::size_t>({shares, std::thread::hardware_concurrency(), 4});
  std::vector<std::future<void>> helpers;
  try {
    for (std::size_t i = 1; i < threads; ++i)
      helpers.push_back(std::async(std::launch::async, takeShares));
  } catch (const std::system_error&) {
    // No more threads to be had: those that there are do it all.
  }
  takeShares();
  for (std::future<void>& helper : helpers)
    helper.get();
}

} // namespace tervix::tool
