#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/report/RawText.h"
#include "tools/tervix/report/Curves.h"

using namespace tervix::testing;
using tervix::tool::Curve;
using tervix::tool::CurvePlot;
using tervix::tool::RawCurves;
using tervix::tool::readCurves;

namespace {

constexpr std::size_t kMostDrawn = 1700; // points of a curve

class CurvesTest : public ::testing::Test {
protected:
  RawCurves curvesOf(const std::string& content) const {
    return readCurves(folder_.file("x.raw", content));
  }

  CurvePlot plotOf(RawText raw) const {
    raw.points = std::to_string(raw.rows.size());
    RawCurves curves = curvesOf(raw.binary());
    EXPECT_EQ(curves.remarks, std::vector<std::string>());
    EXPECT_EQ(curves.plots.size(), 1U);
    return curves.plots.empty() ? CurvePlot() : curves.plots.front();
  }

  TemporaryFolder folder_;
};

double highest(const Curve& curve) {
  return *std::max_element(curve.values.begin(), curve.values.end());
}

double lowest(const Curve& curve) {
  return *std::min_element(curve.values.begin(), curve.values.end());
}

TEST_F(CurvesTest, AreWholeWhenTheyAreShort) {
  RawText raw;
  raw.rows = {{0, 1}, {1, 3}, {5, 2}};
  const CurvePlot plot = plotOf(raw);
  EXPECT_EQ(plot.points, 3U);
  EXPECT_FALSE(plot.isReduced);
  EXPECT_EQ(plot.scale.values, std::vector<double>({0, 1, 5}));
  EXPECT_EQ(plot.scale.unit, "s");
  ASSERT_EQ(plot.charts.size(), 1U);
  EXPECT_EQ(plot.charts[0].quantity, "Voltage");
  EXPECT_EQ(plot.charts[0].curves[0].values, std::vector<double>({1, 3, 2}));
  EXPECT_TRUE(plot.remarks.empty());
}

TEST_F(CurvesTest, KeepEveryPeakWhenTheyAreLong) {
  RawText raw;
  raw.variables = {"time\ttime", "v(a)\tvoltage", "v(b)\tvoltage"};
  for (int i = 0; i < 100000; ++i) // one spike each, of one point
    raw.rows.push_back({i * 1e-6, i == 54321 ? 7.0 : 0.0, i == 1234 ? -3.0 : 1.0});
  const CurvePlot plot = plotOf(raw);
  EXPECT_TRUE(plot.isReduced);
  EXPECT_EQ(plot.points, 100000U);
  EXPECT_LT(plot.scale.values.size(), kMostDrawn);
  EXPECT_EQ(highest(plot.charts[0].curves[0]), 7);
  EXPECT_EQ(lowest(plot.charts[0].curves[1]), -3);
  EXPECT_EQ(plot.scale.values.front(), 0);
  EXPECT_EQ(plot.scale.values.back(), 99999 * 1e-6);
  EXPECT_TRUE(std::is_sorted(plot.scale.values.begin(), plot.scale.values.end()));
}

// Most points lie close together, as at an edge: the rest of the curve must not suffer.
TEST_F(CurvesTest, AreCutAlongTheScaleAndNotByTheNumberOfPoints) {
  RawText raw;
  for (int i = 0; i < 50000; ++i)
    raw.rows.push_back({i * 1e-9, 0});
  for (int i = 1; i <= 1000; ++i)
    raw.rows.push_back({i * 1e-3, i % 2 == 0 ? 0.0 : 1.0});
  const CurvePlot plot = plotOf(raw);
  const auto& scale = plot.scale.values;
  EXPECT_GT(std::count_if(scale.begin(), scale.end(), [](double time) { return time > 1e-4; }),
            790);
}

TEST_F(CurvesTest, StayFewWhereTheScaleGoesBackAndForth) {
  RawText raw;
  for (int i = 0; i < 50000; ++i)
    raw.rows.push_back({static_cast<double>(i * 7919 % 1000), static_cast<double>(i)});
  const CurvePlot plot = plotOf(raw);
  EXPECT_LT(plot.scale.values.size(), kMostDrawn);
  EXPECT_EQ(highest(plot.charts[0].curves[0]), 49999);
}

TEST_F(CurvesTest, OfComplexValuesAreLevelAndPhase) {
  RawText raw;
  raw.flags = "complex";
  raw.variables = {"frequency\tfrequency grid=3", "v(out)\tvoltage"};
  raw.rows = {{1, 0, 10, 0}, {10, 0, 0, -1}, {100, 0, -0.1, 0.001}};
  const CurvePlot plot = plotOf(raw);
  EXPECT_TRUE(plot.scale.isLog);
  EXPECT_EQ(plot.scale.unit, "Hz");
  ASSERT_EQ(plot.charts.size(), 2U);
  EXPECT_EQ(plot.charts[0].unit, "dB");
  EXPECT_NEAR(plot.charts[0].curves[0].values[0], 20, 1e-9);
  EXPECT_NEAR(plot.charts[0].curves[0].values[1], 0, 1e-9);
  // It goes on beyond half a turn instead of coming back from the other side.
  EXPECT_NEAR(plot.charts[1].curves[0].values[1], -90, 1e-9);
  EXPECT_NEAR(plot.charts[1].curves[0].values[2], -180.573, 1e-3);
}

TEST_F(CurvesTest, OfANestedSweepBeginWithTheirOwnPhase) {
  RawText raw;
  raw.flags = "complex";
  raw.variables = {"frequency\tfrequency grid=3", "v(out)\tvoltage"};
  raw.rows = {{1, 0, 0, -1}, {10, 0, -1, 0}, {100, 0, 0, 1}, {1, 0, 0, -1}, {10, 0, -1, 0}};
  const std::vector<double> phases = plotOf(raw).charts[1].curves[0].values;
  ASSERT_EQ(phases.size(), 5U);
  EXPECT_NEAR(phases[2], -270, 1e-9);
  EXPECT_NEAR(phases[3], -90, 1e-9);
  EXPECT_NEAR(phases[4], -180, 1e-9);
}

TEST_F(CurvesTest, OfAFallingScaleKeepTheirPhaseWithinARun) {
  RawText raw;
  raw.flags = "complex";
  raw.variables = {"frequency\tfrequency", "v(out)\tvoltage"};
  raw.rows = {{100, 0, 0, -1}, {10, 0, -1, 0}, {1, 0, 0, 1}, {100, 0, 0, 1}, {10, 0, -1, 0}};
  const std::vector<double> phases = plotOf(raw).charts[1].curves[0].values;
  ASSERT_EQ(phases.size(), 5U);
  EXPECT_NEAR(phases[1], -180, 1e-9);
  EXPECT_NEAR(phases[2], -270, 1e-9);
  EXPECT_NEAR(phases[3], 90, 1e-9);
  EXPECT_NEAR(phases[4], 180, 1e-9);
}

TEST_F(CurvesTest, HaveAChartForEachQuantity) {
  RawText raw;
  raw.variables = {"v(v-sweep)\tvoltage", "v(a)\tvoltage", "i(v1)\tcurrent", "v(b)\tvoltage",
                   "x\tfancy"};
  raw.rows = {{0, 1, 2, 3, 4}, {1, 1, 2, 3, 4}};
  const CurvePlot plot = plotOf(raw);
  ASSERT_EQ(plot.charts.size(), 3U);
  EXPECT_EQ(plot.charts[0].curves.size(), 2U);
  EXPECT_EQ(plot.charts[1].unit, "A");
  EXPECT_EQ(plot.charts[2].quantity, "fancy");
  EXPECT_EQ(plot.charts[2].unit, "");
}

TEST_F(CurvesTest, OfNoiseHaveTwoLogarithmicAxes) {
  RawText raw;
  raw.variables = {"frequency\tfrequency grid=3", "onoise_spectrum\tvoltage-density"};
  raw.rows = {{1, 1e-6}, {1000, 1e-9}};
  const CurvePlot plot = plotOf(raw);
  EXPECT_TRUE(plot.scale.isLog);
  EXPECT_TRUE(plot.charts.at(0).isLog);
  EXPECT_EQ(plot.charts.at(0).unit, "V/√Hz");
}

TEST_F(CurvesTest, OfOnePointAreValues) {
  RawText raw;
  raw.plotName = "Operating Point";
  raw.variables = {"v(a)\tvoltage", "i(v1)\tcurrent"};
  raw.rows = {{5, -1e-3}};
  const CurvePlot plot = plotOf(raw);
  EXPECT_TRUE(plot.charts.empty());
  ASSERT_EQ(plot.values.size(), 2U);
  EXPECT_EQ(plot.values[1].real, -1e-3);
  EXPECT_EQ(plot.values[1].unit, "A");
}

TEST_F(CurvesTest, HaveGapsWhereValuesAreNotFinite) {
  RawText raw;
  raw.rows = {{0, 1}, {1, std::nan("")}, {2, HUGE_VAL}, {3, 1}};
  const CurvePlot plot = plotOf(raw);
  EXPECT_TRUE(std::isnan(plot.charts[0].curves[0].values[1]));
  EXPECT_TRUE(std::isnan(plot.charts[0].curves[0].values[2]));
  EXPECT_EQ(plot.remarks,
            std::vector<std::string>({"2 values are not finite; the curves have gaps there."}));
}

TEST_F(CurvesTest, AreNoneOnAScaleWithoutANumber) {
  RawText raw;
  raw.rows = {{std::nan(""), 1}, {HUGE_VAL, 2}};
  const CurvePlot plot = plotOf(raw);
  EXPECT_TRUE(plot.charts.empty());
  EXPECT_EQ(plot.remarks.at(0), "The scale holds no finite number.");
}

TEST_F(CurvesTest, AreTheFirstOfMany) {
  RawText raw;
  std::vector<double> row = {0};
  for (int i = 0; i < 500; ++i) {
    raw.variables.push_back("v(" + std::to_string(i) + ")\tvoltage");
    row.push_back(i);
  }
  row.push_back(0);
  raw.rows = {row, row};
  const CurvePlot plot = plotOf(raw);
  EXPECT_EQ(plot.charts[0].curves.size(), 32U);
  EXPECT_EQ(plot.remarks,
            std::vector<std::string>({"469 curves left out: a plot shows at most 32."}));
}

TEST_F(CurvesTest, OfADamagedFileAreThoseUpToTheDamage) {
  RawText raw;
  raw.rows = {{0, 1}, {1, 2}, {2, 3}};
  raw.points = "4";
  const RawCurves curves = curvesOf(raw.binary());
  ASSERT_EQ(curves.plots.size(), 1U);
  EXPECT_EQ(curves.plots[0].charts[0].curves[0].values, std::vector<double>({1, 2, 3}));
  EXPECT_EQ(curves.plots[0].remarks,
            std::vector<std::string>({"The file is damaged: it ends after 3 of the 4 points that "
                                      "its header tells of."}));
  EXPECT_TRUE(curves.remarks.empty());
}

TEST_F(CurvesTest, TellOfDamageBetweenPlots) {
  RawText raw;
  raw.rows = {{0, 1}, {1, 2}};
  raw.points = "2";
  const RawCurves curves = curvesOf(raw.ascii() + "Title: more\nNo. Points: x\n");
  EXPECT_EQ(curves.plots.size(), 1U);
  EXPECT_EQ(curves.remarks,
            std::vector<std::string>({"The file is damaged: its number of points is \"x\"."}));
}

TEST_F(CurvesTest, OfAnInterruptedRunAreToldToBe) {
  RawText raw;
  raw.rows = {{0, 1}, {1, 2}};
  raw.points = "0";
  const RawCurves curves = curvesOf(raw.binary());
  EXPECT_EQ(curves.plots.at(0).remarks,
            std::vector<std::string>({"The header tells of no points, as of a run that was "
                                      "interrupted; 2 points are there."}));
}

TEST_F(CurvesTest, AreThoseOfTheFirstPlots) {
  RawText raw;
  raw.rows = {{0, 1}, {1, 2}};
  raw.points = "2";
  std::string text;
  for (int i = 0; i < 20; ++i)
    text += raw.binary();
  const RawCurves curves = curvesOf(text);
  EXPECT_EQ(curves.plots.size(), 12U);
  EXPECT_EQ(curves.remarks,
            std::vector<std::string>({"Further plots left out: a file shows at most 12."}));
}

} // namespace
