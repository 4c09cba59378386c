#pragma once

#include <ostream>
#include <string>
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
  void print(std::ostream& out, const Style& style) const;

private:
  std::vector<std::size_t> widths() const;

  std::vector<std::vector<Cell>> rows_;
};

} // namespace tervix::tool
