#include "tools/tervix/report/CurvesJson.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

namespace tervix::tool {
namespace {

constexpr std::size_t kTextOfValue = 6; // characters in base64, rounded up

std::string base64(const std::vector<unsigned char>& bytes) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - at);
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < 3; ++i)
      group = group << 8U | (i < count ? bytes[at + i] : 0U);
    for (std::size_t i = 0; i < 4; ++i)
      text += i <= count ? kDigits[group >> (18 - 6 * i) & 63U] : '=';
  }
  return text;
}

// Lowest byte first, whatever the machine.
void append(std::vector<unsigned char>& bytes, float value) {
  std::uint32_t bits = 0;
  static_assert(sizeof(bits) == sizeof(value));
  std::memcpy(&bits, &value, sizeof(bits));
  for (unsigned shift = 0; shift < 32; shift += 8)
    bytes.push_back(static_cast<unsigned char>(bits >> shift & 0xffU));
}

// The power of two that a range is just below. It is written as a number, which a range of the
// largest values is too large for.
int exponentOf(double low, double high) {
  int exponent = 0;
  std::frexp(high / 4 - low / 4, &exponent);
  return std::min(exponent + 2, std::numeric_limits<double>::max_exponent - 1);
}

// Each value is the base and a number times the factor: single precision has no room for some
// values, but has for all numbers up to one.
Json jsonOfValues(const std::vector<double>& values, bool isLog) {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const double value : values)
    if (std::isfinite(value)) {
      low = std::min(low, value);
      high = std::max(high, value);
    }
  if (isLog || low > high) {
    low = std::min(low, 0.0);
    high = std::max(high, 0.0);
  }
  const double base = isLog ? 0 : low;
  const int exponent = exponentOf(low, high);
  std::vector<unsigned char> bytes;
  for (const double value : values)
    append(bytes, static_cast<float>(std::ldexp(value, -exponent) - std::ldexp(base, -exponent)));
  return {{"base", base}, {"factor", std::ldexp(1, exponent)}, {"data", base64(bytes)}};
}

Json withValues(Json json, const std::vector<double>& values, bool isLog) {
  json.update(jsonOfValues(values, isLog));
  return json;
}

Json jsonOfChart(const Chart& chart) {
  return {{"quantity", chart.quantity},
          {"unit", chart.unit},
          {"log", chart.isLog},
          {"curves", arrayOf(chart.curves, [&](const Curve& curve) {
             return withValues({{"name", curve.name}}, curve.values, chart.isLog);
           })}};
}

Json finite(double value) {
  return std::isfinite(value) ? Json(value) : Json();
}

Json jsonOfValue(const PlotValue& value, bool isComplex) {
  Json json = {{"name", value.name}, {"unit", value.unit}, {"value", finite(value.real)}};
  if (isComplex)
    json["imaginary"] = finite(value.imaginary);
  return json;
}

} // namespace

Json jsonOf(const CurvePlot& plot) {
  const Json scale = {
      {"name", plot.scale.name}, {"unit", plot.scale.unit}, {"log", plot.scale.isLog}};
  return {{"name", plot.name},
          {"title", plot.title},
          {"points", plot.points},
          {"reduced", plot.isReduced},
          {"scale", withValues(scale, plot.scale.values, plot.scale.isLog)},
          {"charts", arrayOf(plot.charts, jsonOfChart)},
          {"values",
           arrayOf(plot.values,
                   [&](const PlotValue& value) { return jsonOfValue(value, plot.isComplex); })},
          {"remarks", plot.remarks}};
}

std::size_t sizeOf(const CurvePlot& plot) {
  std::size_t curves = 1;
  for (const Chart& chart : plot.charts)
    curves += chart.curves.size();
  return curves * plot.scale.values.size() * kTextOfValue;
}

} // namespace tervix::tool
