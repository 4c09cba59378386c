#pragma once

#include <string>

namespace tervix::tool {

// What a type of variable in raw output stands for.
struct Quantity {
  std::string name;
  std::string unit;       // empty where there is none
  bool isDensity = false; // which spans decades
};

// A type that is not known is its own name.
Quantity quantityOf(const std::string& type);

} // namespace tervix::tool
