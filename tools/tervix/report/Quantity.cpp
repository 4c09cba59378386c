#include "tools/tervix/report/Quantity.h"

#include <algorithm>
#include <array>

namespace tervix::tool {
namespace {

struct Row {
  const char* type;
  const char* name;
  const char* unit;
};

constexpr std::array<Row, 18> kQuantities = {{{"voltage", "Voltage", "V"},
                                              {"current", "Current", "A"},
                                              {"time", "Time", "s"},
                                              {"frequency", "Frequency", "Hz"},
                                              {"power", "Power", "W"},
                                              {"charge", "Charge", "C"},
                                              {"capacitance", "Capacitance", "F"},
                                              {"impedance", "Impedance", "Ω"},
                                              {"admittance", "Admittance", "S"},
                                              {"temperature", "Temperature", "°C"},
                                              {"temp-sweep", "Temperature", "°C"},
                                              {"res-sweep", "Resistance", "Ω"},
                                              {"phase", "Phase", "°"},
                                              {"decibel", "Level", "dB"},
                                              {"voltage-density", "Voltage density", "V/√Hz"},
                                              {"current-density", "Current density", "A/√Hz"},
                                              {"voltage^2-density", "Power density", "V²/Hz"},
                                              {"current^2-density", "Power density", "A²/Hz"}}};

} // namespace

Quantity quantityOf(const std::string& type) {
  const bool isDensity = type.find("-density") != std::string::npos;
  const auto* const row = std::find_if(kQuantities.begin(), kQuantities.end(),
                                       [&](const Row& known) { return type == known.type; });
  if (row != kQuantities.end())
    return {row->name, row->unit, isDensity};
  return {type == "notype" ? "Value" : type, "", isDensity};
}

} // namespace tervix::tool
