#pragma once

#include <random>
#include <string>
#include <vector>

#include "tests/project/OpenedProject.h"

// Look-ups as plain walks over what the public operations hand out, written without any of the
// library's own helpers.

namespace tervix::testing {

// Texts of a small alphabet, so that equal ones and such that differ in case or in separators only
// come up all the time.
class RandomTexts {
public:
  explicit RandomTexts(unsigned int seed) : engine_(seed) {}

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(engine_); }
  bool oneIn(int count) { return below(count) == 0; }
  std::string name() {
    std::string text = of({"a", "A", "b", "B", "[", "{", "\xC4", "\xE4", "amplifier", "AMPLIFIER"});
    return oneIn(2) ? text : text + of({"1", "2", "_"});
  }
  std::string path() {
    return of({"/p", "/P", "\\p", "c:\\x"}) + of({"/", "\\"}) + name() + of({".sim", ".SIM"});
  }

private:
  std::string of(const std::vector<std::string>& texts) {
    return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
  }

  std::mt19937 engine_;
};

inline char plainlyFolded(char c, bool isPath) {
  if (isPath && c == '\\')
    return '/';
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

inline bool plainlyEqual(const std::string& a, const std::string& b, bool isPath = false) {
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (plainlyFolded(a[i], isPath) != plainlyFolded(b[i], isPath))
      return false;
  return true;
}

inline std::string plainName(const CTervixNode& node) {
  return textOf(node, &CTervixNode::getName);
}
inline std::string plainPath(const CTervixNode& node) {
  return textOf(node, &CTervixNode::getPath);
}

inline bool isNamed(const CTervixNode& node, const std::string& name) {
  return !plainName(node).empty() && plainlyEqual(plainName(node), name);
}
inline bool liesAt(const CTervixNode& node, const std::string& path) {
  return !plainPath(node).empty() && plainlyEqual(plainPath(node), path, true);
}

} // namespace tervix::testing
