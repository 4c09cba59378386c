#include "tools/tervix/Table.h"

#include <algorithm>

namespace tervix::tool {
namespace {

// In characters: those bytes of UTF-8 that begin one.
std::size_t widthOf(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xc0U) != 0x80;
  }));
}

} // namespace

std::vector<std::size_t> Table::widths() const {
  std::vector<std::size_t> widths;
  for (const std::vector<Cell>& row : rows_) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t column = 0; column < row.size(); ++column)
      widths[column] = std::max(widths[column], widthOf(row[column].text));
  }
  return widths;
}

void Table::print(std::ostream& out, const Style& style) const {
  const std::vector<std::size_t> columns = widths();
  for (const std::vector<Cell>& row : rows_) {
    std::string blanks;
    for (std::size_t column = 0; column < row.size(); ++column) {
      const Cell& cell = row[column];
      const std::string room(columns[column] - widthOf(cell.text), ' ');
      out << blanks << "  " << (cell.toTheRight ? room : "")
          << (cell.mark != nullptr ? (style.*cell.mark)(cell.text) : cell.text);
      // What fills a column up goes before the next cell: no line ends in blanks.
      blanks = cell.toTheRight ? "" : room;
    }
    out << "\n";
  }
}

} // namespace tervix::tool
