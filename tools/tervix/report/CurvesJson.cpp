#include "tools/tervix/report/CurvesJson.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
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

Json jsonOfValues(const std::vector<double>& values, bool isLog) {
  double base = 0;
  if (!isLog)
    for (const double value : values)
      if (std::isfinite(value) && (base == 0 || value < base))
        base = value;
  std::vector<unsigned char> bytes;
  for (const double value : values)
    append(bytes, static_cast<float>(value - base));
  return {{"base", base}, {"data", base64(bytes)}};
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
