#pragma once

#include <cstddef>
#include <vector>

namespace tervix::tool {

// What is drawn of long curves: the plot is cut into columns along its scale, and of each column
// the lowest and highest value of each curve are kept, in their order, so that no peak is lost.
class Reduction {
public:
  explicit Reduction(std::size_t curves) : curves_(curves), columnOf_(curves), values_(curves) {}

  // Points come in their order. Those that follow each other in one column are drawn as one.
  void add(std::size_t column, double scale, const std::vector<double>& values);
  void finish() { closeColumn(); }

  // Of a value that is no finite number in all of a column a NaN is kept: the curve has a gap.
  const std::vector<double>& scale() const { return scale_; }
  const std::vector<double>& values(std::size_t curve) const { return values_[curve]; }

private:
  struct Extremes {
    double low;
    double high;
    bool isLowFirst;
  };

  void closeColumn();

  std::size_t curves_;
  std::size_t column_ = 0;
  std::size_t points_ = 0; // in the column
  double first_ = 0;
  double last_ = 0;
  std::vector<Extremes> columnOf_;
  std::vector<double> scale_;
  std::vector<std::vector<double>> values_;
};

} // namespace tervix::tool
