#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tervix::tool {

// The curves of raw output, as they are drawn: in charts with one unit each, above each other, over
// one scale.

struct Curve {
  std::string name;
  std::vector<double> values; // as many as the scale has; NaN where it has a gap
};

struct Chart {
  std::string quantity; // "Voltage"
  std::string unit;     // "V"; empty without one
  bool isLog = false;
  std::vector<Curve> curves;
};

struct Scale {
  std::string name;
  std::string unit;
  bool isLog = false;
  std::vector<double> values;
};

// A plot of one point, such as an operating point, is a list of values and has no charts.
struct PlotValue {
  std::string name;
  std::string unit;
  double real;
  double imaginary;
};

struct CurvePlot {
  std::string name;
  std::string title;
  bool isComplex = false;
  std::size_t points = 0; // that there are, of which the longest curves show the extremes
  bool isReduced = false;
  Scale scale;
  std::vector<Chart> charts;
  std::vector<PlotValue> values;
  std::vector<std::string> remarks; // what is not as it should be, or was left out
};

struct RawCurves {
  std::vector<CurvePlot> plots;
  std::vector<std::string> remarks; // on the file as a whole
};

// Reads the file twice and keeps no more of it than is drawn.
RawCurves readCurves(const std::string& path);

} // namespace tervix::tool
