#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "tools/tervix/Style.h"

namespace tervix::tool {

// Lines of cells that stand below each other in columns.
class Table {
public:
  using Mark = std::string (Style::*)(const std::string&) const;

  struct Cell {
    std::string text; // printable
    Mark mark = nullptr;
    bool toTheRight = false;
  };

  void add(std::vector<Cell> row) { rows_.push_back(std::move(row)); }
  // One more cell in the last row.
  void addToLast(Cell cell) { rows_.back().push_back(std::move(cell)); }
  void print(std::ostream& out, const Style& style) const;

private:
  std::vector<std::size_t> widths() const;

  std::vector<std::vector<Cell>> rows_;
};

} // namespace tervix::tool
