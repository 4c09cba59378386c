#include "tests/tools/report/RawText.h"

#include <cstring>
#include <sstream>

namespace tervix::testing {

std::string RawText::header() const {
  std::string text = "Title: a test\nDate: Sat Nov 21 12:00:00  2026\nPlotname: " + plotName +
                     "\nFlags: " + flags + "\nNo. Variables: " + std::to_string(variables.size()) +
                     "\nNo. Points: " + points + "\nVariables:\n";
  for (std::size_t i = 0; i < variables.size(); ++i)
    text += "\t" + std::to_string(i) + "\t" + variables[i] + "\n";
  return text;
}

std::string RawText::ascii() const {
  std::ostringstream text;
  text.precision(17);
  text << header() << "Values:\n";
  const std::size_t parts = flags == "complex" ? 2 : 1;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    text << " " << row;
    for (std::size_t at = 0; at < rows[row].size(); at += parts) {
      text << "\t" << rows[row][at];
      if (parts == 2)
        text << "," << rows[row][at + 1];
      text << "\n";
    }
    text << "\n";
  }
  return text.str();
}

std::string RawText::binary() const {
  std::string text = header() + "Binary:\n";
  for (const std::vector<double>& row : rows)
    for (const double value : row) {
      char bytes[sizeof(value)];
      std::memcpy(bytes, &value, sizeof(value));
      text.append(bytes, sizeof(value));
    }
  return text;
}

} // namespace tervix::testing
