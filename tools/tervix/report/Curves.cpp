#include "tools/tervix/report/Curves.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "tools/tervix/report/Quantity.h"
#include "tools/tervix/report/RawFile.h"
#include "tools/tervix/report/Reduction.h"

namespace tervix::tool {
namespace {

constexpr std::size_t kColumns = 800;
constexpr std::size_t kLongestWhole = 2 * kColumns; // points that are all drawn
constexpr std::size_t kMostCurves = 32;             // of a plot
constexpr std::size_t kMostPlots = 12;              // of a file
constexpr double kLongWayBack = 0.5;                // as a share of the scale
constexpr double kDegrees = 180 / 3.14159265358979323846;

std::string counted(std::size_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

// What has to be known of a plot before it can be cut into columns.
struct Extent {
  std::size_t points = 0;
  std::size_t odd = 0; // values that are no finite numbers
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();
  bool isRising = true;
  double direction = 0; // of its first step: 1 up, -1 down
  std::vector<double> firstRow;
};

// One plot of a file, read into what is drawn of it.
class PlotReader {
public:
  explicit PlotReader(RawFile& file)
      : file_(file), raw_(file.plot()), parts_(raw_.isComplex ? 2 : 1),
        shown_(std::min(raw_.variables.size() - 1, kMostCurves)), values_(shown_ * parts_),
        phases_(shown_) {}

  CurvePlot read() {
    measure();
    plot_.name = raw_.name;
    plot_.title = raw_.title;
    plot_.isComplex = raw_.isComplex;
    plot_.points = extent_.points;
    remark();
    if (extent_.points == 1)
      listValues();
    else if (extent_.points > 1 && shown_ > 0 && extent_.low <= extent_.high)
      draw();
    return std::move(plot_);
  }

private:
  void measure() {
    double before = -std::numeric_limits<double>::infinity();
    for (std::vector<double> row; file_.nextRow(row); ++extent_.points) {
      if (extent_.points == 0)
        extent_.firstRow = row;
      extent_.odd += static_cast<std::size_t>(std::count_if(
          row.begin(), row.end(), [](double value) { return !std::isfinite(value); }));
      const double scale = row.front();
      extent_.isRising = extent_.isRising && scale >= before;
      if (extent_.direction == 0 && extent_.points > 0 && scale != before)
        extent_.direction = scale < before ? -1 : 1;
      before = scale;
      if (std::isfinite(scale)) {
        extent_.low = std::min(extent_.low, scale);
        extent_.high = std::max(extent_.high, scale);
      }
    }
  }

  void remark() {
    const std::string points = counted(extent_.points, "point");
    if (!file_.mistake().empty())
      plot_.remarks.push_back("The file is damaged: " + file_.mistake() + ".");
    else if (raw_.points == 0 && extent_.points != 0)
      plot_.remarks.push_back("The header tells of no points, as of a run that was interrupted; " +
                              points + " are there.");
    if (extent_.points == 0)
      plot_.remarks.emplace_back("The plot has no points.");
    else if (extent_.points > 1 && shown_ == 0)
      plot_.remarks.emplace_back("The plot has a scale and no curves.");
    else if (extent_.points > 1 && extent_.low > extent_.high)
      plot_.remarks.emplace_back("The scale holds no finite number.");
    if (extent_.odd != 0)
      plot_.remarks.push_back(counted(extent_.odd, "value") +
                              " are not finite; the curves have gaps there.");
    if (const std::size_t left = raw_.variables.size() - 1 - shown_; left != 0)
      plot_.remarks.push_back(counted(left, "curve") + " left out: a plot shows at most " +
                              std::to_string(kMostCurves) + ".");
  }

  void listValues() {
    const std::size_t count = std::min(raw_.variables.size(), kMostValues);
    for (std::size_t i = 0; i < count; ++i)
      plot_.values.push_back({raw_.variables[i].name, quantityOf(raw_.variables[i].type).unit,
                              extent_.firstRow[i * parts_],
                              raw_.isComplex ? extent_.firstRow[i * parts_ + 1] : 0});
  }

  void draw() {
    const RawVariable& scale = raw_.variables.front();
    const Quantity quantity = quantityOf(scale.type);
    plot_.scale.name = scale.name;
    plot_.scale.unit = quantity.unit;
    plot_.scale.isLog = scale.isLogScaled && extent_.low > 0 && extent_.high > extent_.low;
    plot_.isReduced = extent_.points > kLongestWhole;
    Reduction reduction(values_.size());
    file_.rewind();
    std::size_t point = 0;
    double before = placeOf(extent_.firstRow.front());
    for (std::vector<double> row; file_.nextRow(row); ++point) {
      // A nested sweep begins again, and so does the phase.
      const double place = placeOf(row.front());
      if ((before - place) * extent_.direction > kLongWayBack)
        phases_.assign(phases_.size(), 0);
      before = place;
      convert(row);
      reduction.add(columnOf(point, row.front()), row.front(), values_);
    }
    reduction.finish();
    plot_.scale.values = reduction.scale();
    raw_.isComplex ? makeBodeCharts(reduction) : makeCharts(reduction);
  }

  // How far along its axis a value of the scale is, from 0 to 1.
  double placeOf(double scale) const {
    return plot_.scale.isLog ? std::log(scale / extent_.low) / std::log(extent_.high / extent_.low)
                             : (scale - extent_.low) / (extent_.high - extent_.low);
  }

  // Columns of equal width where the scale only rises, as a time with steps of any length;
  // of equal numbers of points elsewhere, as in a nested sweep.
  std::size_t columnOf(std::size_t point, double scale) const {
    if (!plot_.isReduced)
      return point;
    if (!extent_.isRising)
      return point * kColumns / extent_.points;
    const double place = placeOf(scale);
    return std::isfinite(place) ? static_cast<std::size_t>(std::clamp(place, 0.0, 1.0) * kColumns)
                                : 0;
  }

  // The values that are drawn of a row. Of a complex one level and phase, which goes on beyond
  // half a turn.
  void convert(const std::vector<double>& row) {
    for (std::size_t curve = 0; curve < shown_; ++curve) {
      const double* const value = &row[(curve + 1) * parts_];
      if (!raw_.isComplex) {
        values_[curve] = *value;
        continue;
      }
      values_[curve] = 20 * std::log10(std::hypot(value[0], value[1]));
      double& phase = phases_[curve];
      const double turned = std::atan2(value[1], value[0]) * kDegrees;
      if (std::isfinite(turned))
        phase = turned + 360 * std::round((phase - turned) / 360);
      values_[shown_ + curve] = std::isfinite(turned) ? phase : turned;
    }
  }

  void makeCharts(const Reduction& reduction) {
    for (std::size_t curve = 0; curve < shown_; ++curve) {
      const RawVariable& variable = raw_.variables[curve + 1];
      const Quantity quantity = quantityOf(variable.type);
      auto chart = std::find_if(plot_.charts.begin(), plot_.charts.end(), [&](const Chart& other) {
        return other.quantity == quantity.name && other.unit == quantity.unit;
      });
      if (chart == plot_.charts.end())
        chart = plot_.charts.insert(chart, {quantity.name, quantity.unit, quantity.isDensity, {}});
      chart->curves.push_back({variable.name, reduction.values(curve)});
    }
  }

  void makeBodeCharts(const Reduction& reduction) {
    plot_.charts = {{"Magnitude", "dB", false, {}}, {"Phase", "°", false, {}}};
    for (std::size_t curve = 0; curve < shown_; ++curve)
      for (std::size_t part = 0; part < 2; ++part)
        plot_.charts[part].curves.push_back(
            {raw_.variables[curve + 1].name, reduction.values(part * shown_ + curve)});
  }

  static constexpr std::size_t kMostValues = 1000;

  RawFile& file_;
  const RawPlot& raw_;
  std::size_t parts_;
  std::size_t shown_;
  Extent extent_;
  std::vector<double> values_;
  std::vector<double> phases_;
  CurvePlot plot_;
};

} // namespace

RawCurves readCurves(const std::string& path) {
  RawCurves curves;
  RawFile file(path);
  bool isTold = false; // of a mistake, by the plot in which it is
  while (curves.plots.size() < kMostPlots && file.nextPlot()) {
    curves.plots.push_back(PlotReader(file).read());
    isTold = !file.mistake().empty();
  }
  if (!file.mistake().empty() && !isTold)
    curves.remarks.push_back("The file is damaged: " + file.mistake() + ".");
  else if (curves.plots.size() == kMostPlots && file.nextPlot())
    curves.remarks.push_back("Further plots left out: a file shows at most " +
                             std::to_string(kMostPlots) + ".");
  return curves;
}

} // namespace tervix::tool
