#pragma once

#include <string>

namespace tervix::tool {

// How text is set off on a terminal; plain text anywhere else.
class Style {
public:
  explicit Style(bool colours) : colours_(colours) {}

  std::string heading(const std::string& text) const { return marked("1", text); }
  std::string accent(const std::string& text) const { return marked("32", text); }
  std::string faint(const std::string& text) const { return marked("2", text); }
  std::string problem(const std::string& text) const { return marked("31", text); }

private:
  std::string marked(const char* code, const std::string& text) const;

  bool colours_;
};

} // namespace tervix::tool
