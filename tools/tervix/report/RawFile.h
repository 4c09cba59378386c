#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tervix::tool {

// A simulator's raw output, ASCII or binary: one or more plots, each a header and a table of
// numbers, one row for each point.

struct RawVariable {
  std::string name;
  std::string type;         // "voltage", "frequency", ...
  bool isLogScaled = false; // as the simulator would draw its axis
};

struct RawPlot {
  std::string title;
  std::string name;
  bool isComplex = false;
  bool isBinary = false;
  std::uint64_t points = 0; // as the header tells; 0 of a run that was interrupted
  std::vector<RawVariable> variables;

  // Numbers in a row: a complex one is two, real part first.
  std::size_t width() const { return variables.size() * (isComplex ? 2 : 1); }
};

// Whether a file of any kind begins as raw output does.
bool isRawOutput(const std::string& path);

// Reads row by row, so that a file of any size takes little memory, and believes nothing that a
// header tells before it is there. After a mistake no more is to be had from the file.
class RawFile {
public:
  explicit RawFile(const std::string& path);

  // Goes on to the header of the next plot; the one before it has to be read to its end. False at
  // the end of the file, and when what stands there is no plot.
  bool nextPlot();
  const RawPlot& plot() const { return plot_; }
  // Reads one point. False after the last, and where the file ends or is damaged.
  bool nextRow(std::vector<double>& row);
  // Back to the first point of the plot, to read it once more.
  void rewind();

  const std::string& mistake() const { return mistake_; } // for a person; empty without one

private:
  bool readHeader();
  bool readField(std::string_view name, std::string_view value);
  bool readVariables(std::string line, std::uint64_t count);
  bool readBinaryRow(std::vector<double>& row);
  bool readAsciiRow(std::vector<double>& row);
  bool isAtNextPlot();
  bool readLine(std::string& line);
  bool readWord(std::string& word);
  bool fail(const std::string& mistake);
  bool endEarly();

  std::ifstream stream_;
  RawPlot plot_;
  std::uint64_t variables_ = 0; // how many the header tells of
  std::uint64_t rowsRead_ = 0;
  std::streampos rows_;
  std::string mistake_;
  std::string word_;
  std::vector<char> bytes_;
};

} // namespace tervix::tool
