#include "tools/tervix/commands/ProgressLine.h"

#include <array>
#include <iomanip>
#include <iostream>
#include <sstream>

#include "foundation/platform/Console.h"

namespace tervix::tool {
namespace {

constexpr std::chrono::milliseconds kBetween(100);
constexpr std::array<const char*, 5> kUnits = {"B", "kB", "MB", "GB", "TB"};

} // namespace

std::string sizeText(std::uintmax_t bytes) {
  auto value = static_cast<double>(bytes);
  std::size_t unit = 0;
  for (; value >= 999.95 && unit + 1 < kUnits.size(); ++unit)
    value /= 1000;
  std::ostringstream text;
  text << std::fixed << std::setprecision(unit == 0 ? 0 : 1) << value << " " << kUnits.at(unit);
  return text.str();
}

ProgressLine::ProgressLine(bool isWanted, std::size_t files, std::uintmax_t bytes)
    : isShown_(isWanted && platform::standardErrorTakesProgress()), files_(files), bytes_(bytes) {}

ProgressLine::~ProgressLine() {
  if (isDrawn_)
    std::cerr << "\r\033[K" << std::flush;
}

void ProgressLine::next(std::uintmax_t size) {
  bytesDone_ += begun_;
  begun_ = size;
  ++filesDone_;
  const Clock::time_point now = Clock::now();
  if (!isShown_ || (isDrawn_ && now - drawn_ < kBetween))
    return;
  isDrawn_ = true;
  drawn_ = now;
  std::cerr << "\r\033[Kcopying file " << filesDone_ << " of " << files_ << ", "
            << sizeText(bytesDone_) << " of " << sizeText(bytes_) << std::flush;
}

} // namespace tervix::tool
