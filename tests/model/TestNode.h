#pragma once

#include <string>

#include "CTervixNode.h"

namespace tervix::testing {

// A node that counts how many of its kind there are.
class TestNode : public CTervixNode {
public:
  explicit TestNode(std::string name = "", std::string path = "") {
    setName(name);
    setPath(path);
    ++alive;
  }
  TestNode(const TestNode& other) : CTervixNode(other) { ++alive; }
  ~TestNode() override { --alive; }

  unsigned long writeVariants() override { return 0; }
  unsigned long readVariants() override { return 0; }

  static inline int alive = 0;
};

} // namespace tervix::testing
