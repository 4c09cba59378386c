#include "tools/tervix/report/Reduction.h"

#include <cmath>
#include <limits>

namespace tervix::tool {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

} // namespace

void Reduction::add(std::size_t column, double scale, const std::vector<double>& values) {
  if (points_ != 0 && column != column_)
    closeColumn();
  if (points_ == 0) {
    column_ = column;
    first_ = scale;
    columnOf_.assign(curves_, {kNone, kNone, true});
  }
  last_ = scale;
  ++points_;
  for (std::size_t curve = 0; curve < curves_; ++curve) {
    Extremes& extremes = columnOf_[curve];
    const double value = values[curve];
    if (!std::isfinite(value))
      continue;
    if (std::isnan(extremes.low)) {
      extremes = {value, value, true};
    } else if (value < extremes.low) {
      extremes.low = value;
      extremes.isLowFirst = false;
    } else if (value > extremes.high) {
      extremes.high = value;
      extremes.isLowFirst = true;
    }
  }
}

void Reduction::closeColumn() {
  if (points_ == 0)
    return;
  const bool isOnePoint = points_ == 1;
  scale_.push_back(first_);
  if (!isOnePoint)
    scale_.push_back(last_);
  for (std::size_t curve = 0; curve < curves_; ++curve) {
    const Extremes& extremes = columnOf_[curve];
    values_[curve].push_back(extremes.isLowFirst ? extremes.low : extremes.high);
    if (!isOnePoint)
      values_[curve].push_back(extremes.isLowFirst ? extremes.high : extremes.low);
  }
  points_ = 0;
}

} // namespace tervix::tool
