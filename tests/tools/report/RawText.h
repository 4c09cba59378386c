#pragma once

#include <string>
#include <vector>

namespace tervix::testing {

// Raw output as a simulator writes it, real values only where nothing else is said.
struct RawText {
  std::string plotName = "Transient Analysis";
  std::string flags = "real";
  std::vector<std::string> variables = {"time\ttime", "v(out)\tvoltage"};
  std::vector<std::vector<double>> rows; // of a complex plot with both parts of each value
  std::string points = std::to_string(rows.size());

  std::string ascii() const;
  std::string binary() const;

private:
  std::string header() const;
};

} // namespace tervix::testing
